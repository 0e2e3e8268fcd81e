#include "frame/hover.h"

#include <Xm/Label.h>
#include <kitegui.h>

#include <string>

#include "frame/dispatcher.h"
#include "frame/top_window.h"
#include "toolkit/colours.h"
#include "toolkit/compound_string.h"
#include "toolkit/never_destroyed.h"
#include "toolkit/shells.h"
#include "toolkit/widget_ref.h"

namespace kite::hover {

namespace {

constexpr int kBelowPointer = 20;  // pixels, clear of the pointer's own shape
constexpr Colour kTipBackground{0xFFFF, 0xFFFF, 0xFFAA};

struct State {
    int delay = -1;          // set by setDelay
    XtIntervalId timer = 0;  // the one pending time-out, 0 when there is none
    bool isTip = false;      // it will show this tip, else report this control
    std::string text;
    WidgetRef control;
    int id = 0;
    WidgetRef tip;  // what it has shown, until the pointer leaves
};
State& state = neverDestroyed<State>();

struct Point {
    int x, y;
};

Point pointerIn(Widget window)
{
    Window root, child;
    int rootX, rootY;
    Point pointer{};
    unsigned int buttons;
    XQueryPointer(XtDisplay(window), XtWindow(window), &root, &child, &rootX, &rootY, &pointer.x,
                  &pointer.y, &buttons);
    return pointer;
}

// Left unmanaged: it floats above its siblings and takes no part in the window's layout.
void showTip(Widget window)
{
    const Point pointer = pointerIn(window);
    const CompoundString text{state.text.c_str()};
    Widget tip =
        XtVaCreateWidget("v_tooltip", xmLabelWidgetClass, window, XmNx, pointer.x, XmNy,
                         pointer.y + kBelowPointer, XmNborderWidth, 1, XmNbackground,
                         allocateColour(window, kTipBackground), XmNforeground, blackPixel(window),
                         XmNborderColor, blackPixel(window), XmNlabelString, text.get(), nullptr);
    XtRealizeWidget(tip);
    XMapRaised(XtDisplay(tip), XtWindow(tip));
    state.tip.reset(tip);
}

// A dialog or box may have come up meanwhile, and its handler knows other ids.
void reportControl()
{
    Widget const control = state.control.get();
    if (control && shellOf(control) == shellOf(topWindow())) raise(GUI_EVENT_HOVER, state.id);
}

void timedOut(XtPointer, XtIntervalId*)
{
    state.timer = 0;
    if (!state.isTip) return reportControl();
    Widget const window = topWindow();
    if (window && XtIsComposite(window) && XtIsRealized(window)) showTip(window);
}

void startTimer()
{
    XtAppContext const application = servedApplication();
    if (state.delay < 0 || !application) return;
    state.timer =
        XtAppAddTimeOut(application, static_cast<unsigned long>(state.delay), timedOut, nullptr);
}

}  // namespace

void setDelay(int milliseconds)
{
    state.delay = milliseconds;
}

void enterWithTip(const char* tip)
{
    leave();
    state.isTip = true;
    state.text = tip;
    startTimer();
}

void enterControl(Widget control, int id)
{
    leave();
    state.isTip = false;
    state.control.reset(control);
    state.id = id;
    startTimer();
}

void leave()
{
    cancel();
    // It may belong to a window that is not the top window any more.
    if (Widget const tip = state.tip.get()) XtDestroyWidget(tip);
    state.tip.reset();
}

void cancel()
{
    if (state.timer) XtRemoveTimeOut(state.timer);
    state.timer = 0;
}

}  // namespace kite::hover
