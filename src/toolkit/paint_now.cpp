#include "toolkit/paint_now.h"

#include <X11/IntrinsicP.h>

#include <algorithm>
#include <chrono>
#include <utility>

namespace kite {

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr Milliseconds kPause{16};  // between two bursts of changes

struct {
    double allowance =
        kPaintedInARow;          // grows with time and shrinks with every change that is painted
    Clock::time_point latest{};  // when a change was to be painted
} state;

struct Turn {
    bool isPainted;
    bool isFirst;  // after a pause, in which others may have asked to be painted
};

Turn nextTurn()
{
    const auto now = Clock::now();
    const Milliseconds since = now - std::exchange(state.latest, now);
    state.allowance =
        std::min(state.allowance + since.count() * kPaintedAMillisecond, kPaintedInARow);
    if (state.allowance < 1) return {false, false};
    state.allowance -= 1;
    return {true, since > kPause};
}

XEvent exposureOf(Widget widget)
{
    XEvent event{};
    event.xexpose.type = Expose;
    event.xexpose.display = XtDisplay(widget);
    event.xexpose.window = XtWindow(widget);
    event.xexpose.width = widget->core.width;
    event.xexpose.height = widget->core.height;
    return event;
}

void paint(Widget widget)
{
    XEvent event = exposureOf(widget);
    if (const XtExposeProc expose = XtClass(widget)->core_class.expose)
        expose(widget, &event, nullptr);
}

// As far as the server has asked for it by now.
void paintExposed(Display* display)
{
    XEvent event;
    while (XCheckMaskEvent(display, ExposureMask, &event)) XtDispatchEvent(&event);
}

void showNow(Widget widget, void (*paint)(Widget))
{
    if (!XtIsRealized(widget)) return;  // it is painted when it is shown
    const Turn turn = nextTurn();
    if (!turn.isPainted) return;
    if (paint) paint(widget);
    if (turn.isFirst) paintExposed(XtDisplay(widget));
    XFlush(XtDisplay(widget));
}

}  // namespace

void paintNow(Widget widget)
{
    showNow(widget, paint);
}

void sendNow(Widget widget)
{
    showNow(widget, nullptr);
}

}  // namespace kite
