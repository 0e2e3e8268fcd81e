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

// Processes events of all kinds, one at a time, as long as `pending()` says so. The widget only names
// the application; it may be destroyed meanwhile.
template <typename Pending>
void processEventsWhile(Widget widget, Pending pending)
{
    const ProcessingEvents scope;
    XtAppContext application = XtWidgetToApplicationContext(widget);
    while (pending()) {
        paintHeldText();
        XtAppProcessEvent(application, XtIMAll);
    }
}

}  // namespace kite
