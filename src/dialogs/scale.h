// scale.h: the toolkit's scale, which sliders and progress bars are.

#pragma once

#include <X11/Intrinsic.h>

#include "dialogs/control.h"
#include "dialogs/thin_place.h"

namespace kite {

// Longer across than down, or as long.
unsigned char orientationOf(const ThinSize& size);

// The part of a scale that is seen and operated.
Widget barOf(Widget scale);

void reportScaleEvents(Widget scale, Tag tag);

}  // namespace kite
