// spin_layout.h: where the field and the arrows of a spin box stand.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

// After a change of the box or its font, to which the toolkit gives all of the box: the field has this width
// and the height of the box, and the arrows have the rest.
void layOutSpin(Widget spin, Dimension fieldWidth);

}  // namespace kite
