// scroll_bars.h: the scroll bars of a scrolled window.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

// Flat around, in the colours of the board that they stand on, and passed over by the keyboard.
void adjustScrollBars(Widget scrolled, Widget board);

}  // namespace kite
