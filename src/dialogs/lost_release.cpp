#include "dialogs/lost_release.h"

#include <Xm/PushB.h>
#include <Xm/ScrollBar.h>
#include <Xm/SpinBP.h>
#include <Xm/ToggleBP.h>

#include "toolkit/nested_loop.h"
#include "toolkit/never_destroyed.h"
#include "toolkit/soon.h"
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

// What the toolkit does when the pointer is moved off the button, and released there.
void letGoOfButton(Widget control)
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

bool isSpinBox(Widget widget)
{
    return XtIsSubclass(widget, xmSpinBoxWidgetClass);
}

// What the toolkit does when the mouse button is released, but no last step: the release is none of the user's.
void letGoOfPart(Widget part)
{
    XEvent event{};
    event.xbutton.type = ButtonRelease;
    event.xbutton.display = XtDisplay(part);
    event.xbutton.window = XtWindow(part);
    if (isSpinBox(part)) reinterpret_cast<XmSpinBoxWidget>(part)->spinBox.make_change = False;
    XtCallActionProc(part, isSpinBox(part) ? "SpinBDisarm" : "Release", &event, nullptr, 0);
}

void letGo(Widget widget)
{
    if (isSpinBox(widget) || XmIsScrollBar(widget))
        letGoOfPart(widget);
    else
        letGoOfButton(widget);
}

void clickDone(Widget widget)
{
    if (XtIsRealized(widget) && !isMouseHeld(widget)) letGo(widget);
}

// The part that the mouse button was pressed on and not yet released.
WidgetRef& held = neverDestroyed<WidgetRef>();

void pressed(Widget part, XtPointer, XEvent*, Boolean*)
{
    held.reset(part);
}

void released(Widget, XtPointer, XEvent*, Boolean*)
{
    held.reset();
}

// The arrows of a spin box stop. A scroll bar cannot be stopped in its own time-out, but gives the keyboard back,
// for the box.
void loopBegins()
{
    Widget const part = held.get();
    if (!part) return;
    if (isSpinBox(part))
        letGo(part);
    else
        XtUngrabKeyboard(part, CurrentTime);
}

void loopEnded()
{
    if (held) soon(held.get(), clickDone);
}

}  // namespace

void letGoLater(Widget control)
{
    if (XmIsPushButton(control) || XmIsToggleButton(control)) soon(control, clickDone);
}

void letGoOfWhatIsHeld(Widget part)
{
    observeLoops({loopBegins, loopEnded});
    XtAddEventHandler(part, ButtonPressMask, False, pressed, nullptr);
    XtAddEventHandler(part, ButtonReleaseMask, False, released, nullptr);
}

}  // namespace kite
