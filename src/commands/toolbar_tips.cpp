#include "commands/toolbar_tips.h"

#include <X11/StringDefs.h>

#include "commands/command_room.h"
#include "frame/hover.h"

namespace kite::commands {

namespace {

void left(Widget button)
{
    if (room().tipOwner != button) return;
    room().tipOwner = nullptr;
    hover::leave();
}

void entered(Widget button, XtPointer, XEvent*, Boolean*)
{
    const Command* const command = room().buttons.find(button);
    if (!command || command->tip.empty() || !XtIsSensitive(button)) return;
    room().tipOwner = button;
    hover::enterWithTip(command->tip.c_str());
}

void pointerLeft(Widget button, XtPointer, XEvent*, Boolean*)
{
    left(button);
}

void destroyed(Widget button, XtPointer, XtPointer)
{
    left(button);
}

}  // namespace

void showTipOf(Widget button)
{
    XtAddEventHandler(button, EnterWindowMask, False, entered, nullptr);
    XtAddEventHandler(button, LeaveWindowMask, False, pointerLeft, nullptr);
    XtAddCallback(button, XtNdestroyCallback, destroyed, nullptr);
}

void forgetTipOf(Widget button)
{
    left(button);
}

}  // namespace kite::commands
