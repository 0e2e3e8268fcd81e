// painted_labels.h: what the toolkit keeps for every window in which it has painted a label, given back.
//
// Motif 2.3.8 makes an XftDraw for each such window, whatever its font, and never frees it: about 200 bytes for
// each label of each dialog ever shown, and every label searches the list of all of them when it is painted. A
// new window that gets the number of an old one would even be painted with the old one's clipping.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

// When the shell is destroyed, for everything in it.
void freePaintedLabelsWith(Widget shell);

}  // namespace kite
