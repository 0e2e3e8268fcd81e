// connection.h: the harness's own connection to the display of the test.
//
// Robot, window manager and screen look at the display as a stranger does, through this connection, so
// that they see what the server knows and never disturb the program under test. Windows may vanish
// while they look: errors on this connection are no failures.

#pragma once

#include <X11/Xlib.h>

#include <string>
#include <vector>

#include "geometry.h"

namespace kite::testing {

// Opened at the first call. Ends the process when DISPLAY is not a display of the tests' own.
Display* connection();
bool isConnection(const Display* display);

Window rootWindow();
Atom atom(const std::string& name);

// What the server knows of a window; an empty answer when it is gone.
bool isViewable(Window window);
Rect rectOnScreen(Window window);  // without its border
std::vector<Window> childrenOf(Window window);
Window parentOf(Window window);

// The windows at a point, from the outermost (a child of the root) to the innermost.
std::vector<Window> windowsAt(Point point);

Point pointerPosition();

}  // namespace kite::testing
