// screen_pen.h: the graphics context that pixmaps are painted with.

#pragma once

#include <X11/Xlib.h>

namespace kite {

// For pixmaps of the screen's default depth, with this foreground. There is one for a screen as long as its
// display is open, of our own: the screen's is everybody's, and a host may have changed it.
GC screenPen(Screen* screen, unsigned long foreground);

}  // namespace kite
