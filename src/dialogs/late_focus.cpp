#include "dialogs/late_focus.h"

#include <Xm/Xm.h>

#include "frame/dispatcher.h"
#include "toolkit/never_destroyed.h"
#include "toolkit/soon.h"
#include "toolkit/widget_ref.h"

namespace kite {

namespace {

int moving = 0;  // kept by FocusMoving

// The control that is to have the focus, until the time-out has come.
WidgetRef& wanted = neverDestroyed<WidgetRef>();

// What the control between them reports would send the user back and forth for ever.
void moveLate(XtPointer, XtIntervalId*)
{
    Widget const control = wanted.get();
    wanted.reset();
    if (!control) return;
    const EventsSuppressed quiet;
    XmProcessTraversal(control, XmTRAVERSE_CURRENT);
}

void moveOn(Widget control)
{
    Widget const focus = XmGetFocusWidget(control);
    if (!focus || XtIsSensitive(focus)) return;
    const EventsSuppressed quiet;
    XmProcessTraversal(focus, XmTRAVERSE_NEXT_TAB_GROUP);
}

}  // namespace

FocusMoving::FocusMoving()
{
    ++moving;
}

FocusMoving::~FocusMoving()
{
    --moving;
}

void leaveDisabled(Widget control)
{
    if (moving > 0) soon(control, moveOn);
}

void moveFocus(Widget control)
{
    XmProcessTraversal(control, XmTRAVERSE_CURRENT);
    if (moving == 0) return;
    if (!wanted) XtAppAddTimeOut(XtWidgetToApplicationContext(control), 0, moveLate, nullptr);
    wanted.reset(control);
}

}  // namespace kite
