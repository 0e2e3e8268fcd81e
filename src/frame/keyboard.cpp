#include "frame/keyboard.h"

#include <kitegui.h>

#include "frame/dispatcher.h"
#include "frame/hover.h"
#include "frame/top_window.h"
#include "toolkit/held_redisplay.h"
#include "toolkit/key_symbol.h"

namespace kite {

namespace {

void keyPressed(Widget, XtPointer, XEvent* event, Boolean*)
{
    // Whatever modifiers are held: Shift+F1 is F1 here. (Control and Alt with a function key switch
    // consoles; the server keeps those to itself.)
    const int number = functionKeyNumber(keySymbolOf(&event->xkey));
    if (number == 0) return;
    hover::cancel();
    raise(GUI_EVENT_COMMAND, -number);
}

constexpr int kBreakKey = 10;  // F10, with Control

bool isUserBreak(XKeyEvent* press)
{
    return (press->state & ControlMask) && functionKeyNumber(keySymbolOf(press)) == kBreakKey;
}

}  // namespace

void raiseFunctionKeyCommands(Widget text)
{
    XtAddEventHandler(text, KeyPressMask, False, keyPressed, nullptr);
}

}  // namespace kite

int guiUserBreak(void)
{
    Widget const window = kite::boxParent();
    if (!window) return 0;
    kite::paintHeldText();  // a computation that asks this now and then shows what it has written
    // All of them are taken, also those behind the break: keys pressed during a computation that is
    // given up are not meant for what comes after it.
    int isBroken = 0;
    XEvent event;
    while (XCheckTypedEvent(XtDisplay(window), KeyPress, &event))
        if (kite::isUserBreak(&event.xkey)) isBroken = 1;
    return isBroken;
}
