#include "frame/dispatcher.h"

#include <Xm/Xm.h>

#include <utility>

#include "frame/busy_cursor.h"
#include "frame/deferred_start.h"
#include "frame/top_window.h"
#include "toolkit/held_redisplay.h"
#include "toolkit/resources.h"

namespace kite {

namespace {

constexpr int kMostShowings = 16;  // for one event

struct Event {
    int code, id, a, b;

    bool isCloseRequest() const { return code == GUI_EVENT_COMMAND && id == GUI_COMMAND_CLOSE; }
};

struct {
    GuiHandler hostCallback = nullptr;                 // set once by guiInit
    dispatcher::FrameActions frame{nullptr, nullptr};  // set by guiInit
    bool started = false;     // set by guiStart and the first event, cleared by guiRestart
    bool showing = false;     // raised and lowered by showUntilStarted
    bool building = false;    // raised by noteBuilding, lowered by setStarted and raiseFirst
    bool suppressed = false;  // raised and lowered by EventsSuppressed, raised by suppressEvents
    bool inHostCallback = false;  // raised and lowered by callHost
} state;

GuiHandler handlerOf(Widget window)
{
    if (!window) return nullptr;
    return reinterpret_cast<GuiHandler>(resource<XtPointer>(window, XmNuserData));
}

void callHandler(GuiHandler handler, const Event& event)
{
    const deferred::HandlerRunning running;
    handler(event.code, event.id, event.a, event.b);
    paintHeldText();
}

// False when the host callback is running already: the event is dropped.
bool callHost(const Event& event)
{
    if (state.inHostCallback) return false;
    state.inHostCallback = true;
    {
        const BusyCursor busy{event.code == GUI_EVENT_INIT};
        callHandler(state.hostCallback, event);
    }
    state.inHostCallback = false;
    return true;
}

// False when nobody got to see the event.
bool deliver(const Event& event)
{
    if (const GuiHandler handler = handlerOf(topWindow())) {
        callHandler(handler, event);
        return true;
    }
    if (state.hostCallback) return callHost(event);
    if (event.isCloseRequest() && state.frame.close) state.frame.close();
    return true;
}

// A host that restarts the frame while event 0 runs, and builds nothing after that, gets event 0 again,
// after this one and not inside it; a host that does so every time gets it with the next event again.
void showUntilStarted()
{
    const bool wasShowing = std::exchange(state.showing, true);
    for (int showings = 0; !state.started && showings < kMostShowings; ++showings) {
        state.started = true;
        if (state.frame.show) state.frame.show();
    }
    state.showing = wasShowing;
}

void runDeferredStarts()
{
    // A negative result is reported to the host callback, also when the window has a handler of its
    // own; that call is a handler too, and what it asks for has waited for it.
    auto result = deferred::runOne();
    while (result && *result < 0 && state.hostCallback && callHost({GUI_EVENT_INIT, -1, 0, 0}))
        result = deferred::runOne();
}

}  // namespace

void raise(int event, int id, int a, int b)
{
    if (state.suppressed) return;
    // A dropped event must not show the frame or start what the running handler only asked for.
    if (!deliver({event, id, a, b})) return;
    if (!state.showing) showUntilStarted();
    runDeferredStarts();
}

namespace dispatcher {

void setHostCallback(GuiHandler callback)
{
    state.hostCallback = callback;
}

void setFrameActions(const FrameActions& actions)
{
    state.frame = actions;
}

bool isStarted()
{
    return state.started;
}

void setStarted(bool started)
{
    state.started = started;
    state.building = false;
}

void showFrame()
{
    setStarted(false);
    showUntilStarted();
}

void raiseFirst()
{
    if (state.suppressed) return;
    state.building = false;
    const bool isDelivered = deliver({GUI_EVENT_INIT, 0, 0, 0});
    // What event 0 has built would be there twice if the open phase called for another one.
    if (state.building) setStarted(true);
    if (isDelivered) runDeferredStarts();
}

void noteBuilding()
{
    state.building = true;
}

void suppressEvents()
{
    state.suppressed = true;
}

bool areEventsSuppressed()
{
    return state.suppressed;
}

}  // namespace dispatcher

EventsSuppressed::EventsSuppressed()
{
    state.suppressed = true;
}

EventsSuppressed::~EventsSuppressed()
{
    state.suppressed = false;
}

}  // namespace kite
