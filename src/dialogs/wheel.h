// wheel.h: the wheel of the mouse scrolls a tree, as it does lists and texts.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

// The toolkit knows of the wheel in its lists and texts, but not in what a scrolled window scrolls for them.
void scrollByWheel(Widget scrolled);

}  // namespace kite
