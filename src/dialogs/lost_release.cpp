#include "dialogs/lost_release.h"

#include <Xm/PushB.h>
#include <Xm/ToggleBP.h>

#include <memory>

#include "toolkit/widget_ref.h"

namespace kite {

namespace {

constexpr unsigned int kAnyButton = Button1Mask | Button2Mask | Button3Mask;

bool isMouseHeld(Widget widget)
{
    Window root, child;
    int rootX, rootY, x, y;
    unsigned int state = 0;
    XQueryPointer(XtDisplay(widget), XtWindow(widget), &root, &child, &rootX, &rootY, &x, &y,
                  &state);
    return (state & kAnyButton) != 0;
}

// What the toolkit does when the pointer is moved off the control, and released there.
void letGo(Widget control)
{
    XEvent event{};
    event.xcrossing.type = LeaveNotify;
    event.xcrossing.display = XtDisplay(control);
    event.xcrossing.window = XtWindow(control);
    for (const char* const action : {"Leave", "Disarm"})
        XtCallActionProc(control, action, &event, nullptr, 0);
    // A toggle button waits for the release all the same, and draws itself when the pointer enters it.
    if (XmIsToggleButton(control))
        reinterpret_cast<XmToggleButtonWidget>(control)->toggle.Armed = False;
}

void clickDone(XtPointer data, XtIntervalId*)
{
    const std::unique_ptr<WidgetRef> control{static_cast<WidgetRef*>(data)};
    Widget const widget = control->get();
    if (widget && XtIsRealized(widget) && !isMouseHeld(widget)) letGo(widget);
}

}  // namespace

void letGoLater(Widget control)
{
    if (!XmIsPushButton(control) && !XmIsToggleButton(control)) return;
    auto later = std::make_unique<WidgetRef>(control);
    XtAppAddTimeOut(XtWidgetToApplicationContext(control), 0, clickDone, later.release());
}

}  // namespace kite
