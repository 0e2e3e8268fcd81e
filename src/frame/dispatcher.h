// dispatcher.h: every event that concerns the host goes through here, and here only.

#pragma once

#include <kitegui.h>

namespace kite {

// Delivers an event to the handler of the top window, else to the host callback; then does what was
// waiting for the handler to return: the first showing of the frame, deferred dialogs and plug-ins.
void raise(int event, int id = 0, int a = 0, int b = 0);

namespace dispatcher {

void setHostCallback(GuiHandler callback);

// What the dispatcher starts in the frame, which lies above it.
struct FrameActions {
    void (*show)();   // the step that shows the frame's commands
    void (*close)();  // a close request that no handler took
};
void setFrameActions(const FrameActions& actions);

// The library is started by guiStart or by the first event; until then, and again after a restart of
// the frame, commands can be built.
bool isStarted();
void setStarted(bool started);

// Shows the frame, as the first event does.
void showFrame();

// Event 0 of the frame, a part of showing it. When the host has built commands meanwhile they are
// complete, and the library is started again.
void raiseFirst();

// The host builds commands.
void noteBuilding();

// No event is delivered any more, until a scope below has been left.
void suppressEvents();
bool areEventsSuppressed();

}  // namespace dispatcher

// No event is delivered in its scope: for changes of the library's own, which are not the user's.
// The flag does not count: leaving any scope lets events pass again.
class EventsSuppressed {
public:
    EventsSuppressed();
    ~EventsSuppressed();

    EventsSuppressed(const EventsSuppressed&) = delete;
    EventsSuppressed& operator=(const EventsSuppressed&) = delete;
};

}  // namespace kite
