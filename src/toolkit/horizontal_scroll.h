// horizontal_scroll.h: horizontal scrolling of a text that is there already.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

// Says what XmNscrollHorizontal says then. A text in a scrolled window wraps its lines only without.
//
// Motif takes that resource when the text is made and ignores it from then on, so this goes past it.
void setHorizontalScrolling(Widget text, bool scrolls);

}  // namespace kite
