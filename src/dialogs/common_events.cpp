#include "dialogs/common_events.h"

#include <Xm/Xm.h>
#include <kitegui.h>

#include "dialogs/late_focus.h"
#include "dialogs/lost_release.h"
#include "dialogs/mouse_buttons.h"
#include "dialogs/special_keys.h"
#include "frame/dispatcher.h"
#include "frame/focus_leave.h"
#include "frame/hover.h"
#include "toolkit/key_symbol.h"
#include "toolkit/nested_loop.h"
#include "toolkit/widget_ref.h"

namespace kite {

namespace {

void entered(Widget control, XtPointer data, XEvent*, Boolean*)
{
    hover::enterControl(control, Tag{data}.id());
}

void left(Widget, XtPointer, XEvent*, Boolean*)
{
    hover::leave();
}

void mousePressed(Widget, XtPointer, XEvent*, Boolean*)
{
    hover::cancel();
}

void keyPressed(Widget, XtPointer data, XEvent* event, Boolean*)
{
    hover::cancel();
    const auto code = specialKeyCode(keySymbolOf(&event->xkey), Tag{data}.type());
    const bool hasControl = (event->xkey.state & ControlMask) != 0;
    if (code) raise(GUI_EVENT_KEY, -1, *code, hasControl ? 1 : 0);
}

// The server's own focus events name the windows around the pointer; those that Xt sends on name the
// control that gets the keys.
void focusChanged(Widget control, XtPointer, XEvent* event, Boolean*)
{
    if (event->type != FocusIn || !event->xfocus.send_event) return;
    hover::cancel();
    const int loopsBefore = loopsBegun();
    const WidgetRef gained{control};
    {
        const FocusMoving scope;
        focusLeave::controlGainedFocus();
    }
    if (gained && loopsBegun() != loopsBefore) letGoLater(control);
}

void helpRequested(Widget, XtPointer data, XtPointer)
{
    hover::cancel();
    raise(GUI_EVENT_HELP, Tag{data}.id());
}

}  // namespace

void reportPointer(Widget widget, Tag control)
{
    XtAddEventHandler(widget, EnterWindowMask, False, entered, control.userData());
    XtAddEventHandler(widget, LeaveWindowMask, False, left, control.userData());
    XtAddEventHandler(widget, ButtonPressMask, False, mousePressed, nullptr);
    reportButtons(widget, control);
}

void reportKeys(Widget widget, Tag control)
{
    XtAddEventHandler(widget, KeyPressMask, False, keyPressed, control.userData());
}

void reportFocusGain(Widget widget)
{
    XtAddEventHandler(widget, FocusChangeMask, False, focusChanged, nullptr);
}

void reportHelp(Widget widget, Tag control)
{
    XtAddCallback(widget, XmNhelpCallback, helpRequested, control.userData());
}

void reportCommonEvents(Widget widget, Tag control)
{
    reportFocusGain(widget);
    reportHelp(widget, control);
    reportKeys(widget, control);
    reportPointer(widget, control);
}

}  // namespace kite
