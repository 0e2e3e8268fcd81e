#include "frame/keyboard.h"

#include <X11/Xutil.h>
#include <kitegui.h>

#include "frame/dispatcher.h"
#include "frame/hover.h"
#include "frame/session.h"
#include "frame/top_window.h"
#include "toolkit/key_symbol.h"

namespace kite {

namespace {

// With Control and Alt the keyboard mapping makes other symbols of the function keys, which switch
// consoles; the key is the same.
int functionKeyOf(XKeyEvent* press)
{
    const int number = functionKeyNumber(keySymbolOf(press));
    return number ? number : functionKeyNumber(XLookupKeysym(press, 0));
}

void keyPressed(Widget, XtPointer, XEvent* event, Boolean*)
{
    // Whatever modifiers are held: Shift+F1 is F1 here.
    const int number = functionKeyOf(&event->xkey);
    if (number == 0) return;
    hover::cancel();
    raise(GUI_EVENT_COMMAND, -number);
}

constexpr int kBreakKey = 10;  // F10, with Control

bool isUserBreak(XKeyEvent* press)
{
    return (press->state & ControlMask) && functionKeyOf(press) == kBreakKey;
}

}  // namespace

void raiseFunctionKeyCommands(Widget text)
{
    XtAddEventHandler(text, KeyPressMask, False, keyPressed, nullptr);
}

}  // namespace kite

int guiUserBreak(void)
{
    if (!kite::boxParent()) return 0;
    // All of them are taken, also those behind the break: keys pressed during a computation that is
    // given up are not meant for what comes after it.
    int isBroken = 0;
    XEvent event;
    while (XCheckTypedEvent(kite::session::display(), KeyPress, &event))
        if (kite::isUserBreak(&event.xkey)) isBroken = 1;
    return isBroken;
}
