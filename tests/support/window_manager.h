// window_manager.h: what a user asks of the window manager, and what it shows of a window.
//
// Every call takes a widget (its shell is meant) or the window of any client:
//
//     wm::close(findWidget("v_mainwnd"));
//     ASSERT_TRUE(pumpUntil([&] { return wm::stateOf(shell) == wm::State::Iconic; }));

#pragma once

#include <X11/Intrinsic.h>

#include <optional>
#include <string>

#include "geometry.h"

namespace kite::testing::wm {

enum class Kind { NoManager, Mwm, Openbox, Other };
Kind kind();

class Client {
public:
    Client(Widget widget);           // NOLINT: says what is meant
    Client(Window w) : window(w) {}  // NOLINT

    Window window;
};

// Withdrawn: not managed.
enum class State { Withdrawn, Normal, Iconic };
State stateOf(Client client);

// Managed, framed and on the screen. Immediately true of what no window manager manages (menus).
bool isSettled(Client client);
bool waitUntilSettled(Client client);

// True when keys that are pressed go to the window or one of its parts. Without a window manager nobody
// gives a new window the focus: waitForFocus does. A manager that is busy with several windows may pass
// the focus on once more: waitForFocus sees that it stays.
bool hasFocus(Client client);
bool waitForFocus(Client client);

// Returns when the manager has handled everything that it was told before: a window that has gone keeps
// it busy for a while.
void awaitManager();

// The outermost window around the client; itself when there is no decoration.
Window frameOf(Client client);
Rect frameRect(Client client);
Rect clientRect(Client client);

// Asks to close as this window manager's user does: in openbox like a pager or taskbar, in mwm through
// the window menu. Undecorated windows get the message that a manager sends.
// Returns when the request has reached the client, if that is this process; else when it was sent.
void close(Client client);
void closeByDecoration(Client client);  // with the mouse, in either
void requestClose(Client client);       // the bare message, without asking the manager

void iconify(Client client);
void iconifyByDecoration(Client client);
void deiconify(Client client);
void activate(Client client);
void moveTo(Client client, Point frameCorner);  // drags the title bar

// Windows of other programs: by title, waiting for one to appear. 0 when none did.
Window waitForWindow(const std::string& title);

}  // namespace kite::testing::wm
