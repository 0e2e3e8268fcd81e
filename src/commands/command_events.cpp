#include "commands/command_events.h"

#include <Xm/ToggleB.h>
#include <kitegui.h>

#include <cstdint>

#include "commands/command_room.h"
#include "frame/dispatcher.h"
#include "frame/hover.h"

namespace kite::commands {

namespace {

// Ids are what the callbacks carry: a menu that has outlived a restart is in no table.
XtPointer asData(int id)
{
    return reinterpret_cast<XtPointer>(static_cast<std::intptr_t>(id));
}

int idFrom(XtPointer data)
{
    return static_cast<int>(reinterpret_cast<std::intptr_t>(data));
}

// The handler may do anything, also destroy the widget: nothing comes after it.
void choose(int id, bool isSet)
{
    hover::cancel();
    raise(GUI_EVENT_COMMAND, id, isSet ? 1 : 0);
}

void plainChosen(Widget, XtPointer id, XtPointer)
{
    choose(idFrom(id), false);
}

void checkChosen(CommandTable& twins, int id, XtPointer call)
{
    const bool isSet = static_cast<XmToggleButtonCallbackStruct*>(call)->set == XmSET;
    if (const Command* const twin = twins.find(id)) setCheck(*twin, isSet);
    choose(id, isSet);
}

void itemChecked(Widget, XtPointer id, XtPointer call)
{
    checkChosen(room().buttons, idFrom(id), call);
}

void buttonChecked(Widget, XtPointer id, XtPointer call)
{
    checkChosen(room().items, idFrom(id), call);
}

void hang(Widget widget, int id, Style style, XtCallbackProc whenChecked)
{
    if (style == kCheck)
        XtAddCallback(widget, XmNvalueChangedCallback, whenChecked, asData(id));
    else
        XtAddCallback(widget, XmNactivateCallback, plainChosen, asData(id));
}

}  // namespace

void raiseFromItem(Widget item, int id, Style style)
{
    hang(item, id, style, itemChecked);
}

void raiseFromButton(Widget button, int id, Style style)
{
    hang(button, id, style, buttonChecked);
}

void setCheck(const Command& command, bool isSet)
{
    if (command.style != kCheck) return;
    if (Widget const widget = command.widget.get())
        XmToggleButtonSetState(widget, static_cast<Boolean>(isSet), False);
}

}  // namespace kite::commands
