// nested_loop.h: processes events while a call waits for the user.

#pragma once

#include <X11/Intrinsic.h>

#include <functional>

#include "toolkit/held_redisplay.h"

namespace kite {

// True inside any of the loops below.
bool isProcessingEvents();

// How many of them run now, one inside the other.
int loopsRunning();

// More than `most` loops run: does the work as soon as no more do.
void whenLoopsAre(int most, const std::function<void()>& work);

// How many of them have begun so far: a call during which the number grows has let the user do things.
int loopsBegun();

// Called when a loop begins, and when it has ended.
struct LoopObserver {
    void (*begins)();
    void (*ended)();
};
void observeLoops(const LoopObserver& observer);

class ProcessingEvents {
public:
    ProcessingEvents();
    ~ProcessingEvents();

    ProcessingEvents(const ProcessingEvents&) = delete;
    ProcessingEvents& operator=(const ProcessingEvents&) = delete;
};

// Does the work as if an event had come for it: what is destroyed meanwhile goes when the work is done, and not
// before.
void asEvent(Display* display, const std::function<void()>& work);

// Processes events of all kinds, one at a time, as long as `pending()` says so. The widget only names
// the application; it may be destroyed meanwhile.
template <typename Pending>
void processEventsWhile(Widget widget, Pending pending)
{
    const ProcessingEvents scope;
    XtAppContext const application = XtWidgetToApplicationContext(widget);
    while (pending()) {
        paintHeldText();
        XtAppProcessEvent(application, XtIMAll);
    }
}

// The same where there are arrows and scroll bars: while they are held they tell the host from time-outs of the
// toolkit's, which go on afterwards. In a time-out Xt would destroy things at once.
template <typename Pending>
void processEventsOfControlsWhile(Widget board, Pending pending)
{
    const ProcessingEvents scope;
    Display* const display = XtDisplay(board);
    XtAppContext const application = XtWidgetToApplicationContext(board);
    while (pending()) {
        paintHeldText();
        asEvent(display, [application] { XtAppProcessEvent(application, XtIMAll); });
    }
}

}  // namespace kite
