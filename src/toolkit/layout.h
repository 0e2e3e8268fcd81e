// layout.h: the parts of a composed widget are put where they belong.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

// As when the widget gets another size: toolkit widgets lay themselves out for the size that they would like to
// have, which is not always the one that they keep.
void layOutAgain(Widget widget);

}  // namespace kite
