#include "frame/session.h"

#include <algorithm>
#include <vector>

#include "toolkit/drop_time_out.h"
#include "toolkit/never_destroyed.h"
#include "toolkit/widget_ref.h"

namespace kite::session {

namespace {

struct State {
    XtAppContext application = nullptr;  // ours (open, close) or the owner's (setOwner)
    Display* display = nullptr;          // the same
    XtAppContext opened = nullptr;       // ours, from open() to close()
    WidgetRef owner;                     // set by setOwner
    int generation = 0;                  // raised by open() and setOwner()
    bool dropsWarnings = false;          // set by dropToolkitWarnings, for contexts still to come
};
State& state = neverDestroyed<State>();

void ignoreWarning(String) {}

// The toolkit keeps notes by a display's address, also of closed ones: a new connection at the address
// of an old one would find them and fail. Connections that come up at such an address are held until
// there is one at another.
Display* openAtNewAddress()
{
    static std::vector<Display*> used;
    std::vector<Display*> held;
    Display* display = XOpenDisplay(nullptr);
    while (display && std::find(used.begin(), used.end(), display) != used.end()) {
        held.push_back(display);
        display = XOpenDisplay(nullptr);
    }
    for (Display* const old : held) XCloseDisplay(old);
    if (display) used.push_back(display);
    return display;
}

void applyWarningPolicy()
{
    if (state.dropsWarnings && state.application)
        XtAppSetWarningHandler(state.application, ignoreWarning);
}

}  // namespace

bool open(const char* applicationName, const char* applicationClass)
{
    static const bool initialized = (XtToolkitInitialize(), true);
    static_cast<void>(initialized);
    state.application = XtCreateApplicationContext();
    state.opened = state.application;
    ++state.generation;
    applyWarningPolicy();

    char program[] = "vex";
    char* arguments[] = {program, nullptr};
    int count = 1;
    state.display = openAtNewAddress();
    if (!state.display) return false;
    XtDisplayInitialize(state.application, state.display, applicationName, applicationClass,
                        nullptr, 0, &count, arguments);
    keepTimeOutsFromDrops(state.display);
    return true;
}

void close()
{
    if (!state.opened) return;
    XtDestroyApplicationContext(state.opened);
    if (state.application == state.opened) {
        state.application = nullptr;
        state.display = nullptr;
    }
    state.opened = nullptr;
}

bool isOpen()
{
    return state.opened != nullptr;
}

int generation()
{
    return state.generation;
}

Display* display()
{
    return state.display;
}

XtAppContext application()
{
    return state.application;
}

void setOwner(Widget owner)
{
    state.owner.reset(owner);
    state.application = XtWidgetToApplicationContext(owner);
    state.display = XtDisplayOfObject(owner);
    keepTimeOutsFromDrops(state.display);
    ++state.generation;
    applyWarningPolicy();
}

Widget owner()
{
    return state.owner.get();
}

void dropToolkitWarnings()
{
    state.dropsWarnings = true;
    applyWarningPolicy();
}

}  // namespace kite::session
