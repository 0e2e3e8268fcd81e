#include "frame/timer.h"

#include <kitegui.h>

#include "frame/dispatcher.h"
#include "frame/top_window.h"

namespace kite::periodicTimer {

namespace {

constexpr int kShortestInterval = 100;  // milliseconds; less means no timer

struct {
    int interval = 0;                    // set by guiTimer
    XtIntervalId id = 0;                 // the running time-out, 0 while its event is being handled
    XtAppContext application = nullptr;  // where it runs
} state;

void arm();

void fired(XtPointer, XtIntervalId*)
{
    state.id = 0;
    raise(GUI_EVENT_TIMER);
    // The handler may have started the timer itself, or asked for one so short that there is none.
    if (!state.id) arm();
}

void arm()
{
    state.application = servedApplication();
    if (state.interval < kShortestInterval || !state.application) return;
    state.id = XtAppAddTimeOut(state.application, static_cast<unsigned long>(state.interval), fired,
                               nullptr);
}

}  // namespace

void stop()
{
    if (state.id) XtRemoveTimeOut(state.id);
    state = {};
}

void stopIn(XtAppContext application)
{
    if (state.application == application) stop();
}

}  // namespace kite::periodicTimer

void guiTimer(int milliseconds)
{
    kite::periodicTimer::stop();
    kite::periodicTimer::state.interval = milliseconds;
    kite::periodicTimer::arm();
}
