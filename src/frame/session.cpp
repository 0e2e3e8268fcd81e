#include "frame/session.h"

#include <X11/StringDefs.h>

#include <utility>

#include "toolkit/display_closing.h"
#include "toolkit/drop_time_out.h"
#include "toolkit/never_destroyed.h"
#include "toolkit/new_display.h"
#include "toolkit/widget_ref.h"

namespace kite::session {

namespace {

struct Connection {
    XtAppContext application = nullptr;
    Display* display = nullptr;
};

struct State {
    Connection opened;           // ours, from open() to close()
    Connection current;          // ours or the owner's, whichever came last
    WidgetRef owner;             // set by setOwner, until it or its display goes
    Connection owners;           // of the owner
    OwnerGone ownerGone{};       // from setOwner
    int generation = 0;          // raised whenever current changes
    bool dropsWarnings = false;  // set by dropToolkitWarnings, for contexts still to come
};
State& state = neverDestroyed<State>();

void ignoreWarning(String) {}

void applyWarningPolicy(XtAppContext application)
{
    if (state.dropsWarnings && application) XtAppSetWarningHandler(application, ignoreWarning);
}

void use(const Connection& connection)
{
    state.current = connection;
    ++state.generation;
    applyWarningPolicy(connection.application);
    if (!connection.display) return;
    noteDisplay(connection.display);
    keepTimeOutsFromDrops(connection.display);
}

// What can be used of the owner's, still can.
void ownerGoes()
{
    state.ownerGone(state.owners.display, state.owners.application);
    if (state.current.display == state.owners.display) use(state.opened);
    state.owners = {};
}

// The host may close its display next: with the owner it is not ours to use any more.
void ownerDestroyed(Widget, XtPointer, XtPointer)
{
    ownerGoes();
    state.owner.reset();
}

// A host may also close its display and leave its widgets.
void displayCloses(Display* display)
{
    if (state.owners.display != display) return;
    ownerGoes();
    state.owner.abandon();
}

}  // namespace

bool open(const char* applicationName, const char* applicationClass)
{
    static const bool initialized = (XtToolkitInitialize(), true);
    static_cast<void>(initialized);
    state.opened = {XtCreateApplicationContext(), openNewDisplay()};
    if (!state.opened.display) return false;
    applyWarningPolicy(state.opened.application);  // what comes now may warn already
    char program[] = "vex";
    char* arguments[] = {program, nullptr};
    int count = 1;
    XtDisplayInitialize(state.opened.application, state.opened.display, applicationName,
                        applicationClass, nullptr, 0, &count, arguments);
    use(state.opened);
    return true;
}

void close()
{
    if (!state.opened.application) return;
    const Connection closing = std::exchange(state.opened, {});
    if (state.current.application == closing.application) state.current = {};
    XtDestroyApplicationContext(closing.application);
}

bool isOpen()
{
    return state.opened.application != nullptr;
}

int generation()
{
    return state.generation;
}

Display* ownDisplay()
{
    return state.opened.display;
}

Display* display()
{
    return state.current.display;
}

XtAppContext application()
{
    return state.current.application;
}

void setOwner(Widget owner, OwnerGone whenGone)
{
    if (Widget const previous = state.owner.get())
        XtRemoveCallback(previous, XtNdestroyCallback, ownerDestroyed, nullptr);
    XtAddCallback(owner, XtNdestroyCallback, ownerDestroyed, nullptr);
    state.owner.reset(owner);
    state.owners = {XtWidgetToApplicationContext(owner), XtDisplayOfObject(owner)};
    state.ownerGone = whenGone;
    callBeforeClosing(state.owners.display, displayCloses);
    use(state.owners);
}

Widget owner()
{
    return state.owner.get();
}

void dropToolkitWarnings()
{
    state.dropsWarnings = true;
    applyWarningPolicy(state.current.application);
}

}  // namespace kite::session
