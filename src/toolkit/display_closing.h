// display_closing.h: a word before a display is closed, whoever closes it.

#pragma once

#include <X11/Xlib.h>

namespace kite {

// The action is called while requests can still be sent. Asking again for the same display and action
// changes nothing.
void callBeforeClosing(Display* display, void (*action)(Display*));

}  // namespace kite
