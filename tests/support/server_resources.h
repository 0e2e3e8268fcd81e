// server_resources.h: what the server keeps for a client.

#pragma once

#include <X11/Xlib.h>

#include <map>
#include <string>

namespace kite::testing {

// Numbers by kind ("PIXMAP", "GC") of what this process has made through the display.
std::map<std::string, unsigned> serverResources(Display* display);

}  // namespace kite::testing
