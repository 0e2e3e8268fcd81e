#include "dialogs/click_focus.h"

#include <Xm/Xm.h>

#include "toolkit/soon.h"

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
void leave(Widget control)
{
    if (XmGetFocusWidget(control) != control)
        XtVaSetValues(control, XmNtraversalOn, False, nullptr);
}

// While the focus moves, the toolkit still takes the control for the one that has it.
void focusChanged(Widget control, XtPointer, XEvent* event, Boolean*)
{
    if (event->type == FocusOut) soon(control, leave);
}

}  // namespace

void takeFocusByClick(Widget control)
{
    XtAddEventHandler(control, ButtonPressMask, False, pressed, nullptr);
    XtAddEventHandler(control, FocusChangeMask, False, focusChanged, nullptr);
}

}  // namespace kite
