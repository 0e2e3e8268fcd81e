#include "dialogs/click_focus.h"

#include <Xm/Xm.h>

namespace kite {

namespace {

// Before the toolkit's own action, which moves the focus to what can have it.
void pressed(Widget control, XtPointer, XEvent* event, Boolean*)
{
    if (event->xbutton.button != Button1) return;
    XtVaSetValues(control, XmNtraversalOn, True, nullptr);
    XmProcessTraversal(control, XmTRAVERSE_CURRENT);
}

// It keeps the focus that only the window has lost.
void focusChanged(Widget control, XtPointer, XEvent* event, Boolean*)
{
    if (event->type == FocusOut && event->xfocus.send_event && XmGetFocusWidget(control) != control)
        XtVaSetValues(control, XmNtraversalOn, False, nullptr);
}

}  // namespace

void takeFocusByClick(Widget control)
{
    XtAddEventHandler(control, ButtonPressMask, False, pressed, nullptr);
    XtAddEventHandler(control, FocusChangeMask, False, focusChanged, nullptr);
}

}  // namespace kite
