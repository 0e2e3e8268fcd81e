// new_display.h: connections that the toolkit cannot mistake for earlier ones.

#pragma once

#include <X11/Xlib.h>

namespace kite {

// The toolkit keeps notes by the addresses of a display and its screens, also of closed ones: a new
// connection at the address of an old one would find them and fail. Opens the display that the environment
// names, at addresses where no noted one has been, and notes it. Null when the display cannot be had.
Display* openNewDisplay();

// For displays that others have opened.
void noteDisplay(Display* display);

}  // namespace kite
