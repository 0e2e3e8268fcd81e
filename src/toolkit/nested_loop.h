// nested_loop.h: processes events while a call waits for the user.

#pragma once

#include <X11/Intrinsic.h>

#include "toolkit/held_redisplay.h"

namespace kite {

// True inside any of the loops below.
bool isProcessingEvents();

// How many of them have begun so far: a call during which the number grows has let the user do things.
int loopsBegun();

class ProcessingEvents {
public:
    ProcessingEvents();
    ~ProcessingEvents();

    ProcessingEvents(const ProcessingEvents&) = delete;
    ProcessingEvents& operator=(const ProcessingEvents&) = delete;
};

// Waits for an event of any kind and processes it. What is destroyed meanwhile goes when the event is over: in
// a time-out Xt would destroy it at once, and arrows and scroll bars that are held tell the host from time-outs
// of the toolkit's, which go on afterwards.
void processEvent(Display* display);

// Processes events, one at a time, as long as `pending()` says so. The widget only names the display; it may
// be destroyed meanwhile.
template <typename Pending>
void processEventsWhile(Widget widget, Pending pending)
{
    const ProcessingEvents scope;
    Display* const display = XtDisplay(widget);
    while (pending()) {
        paintHeldText();
        processEvent(display);
    }
}

}  // namespace kite
