// shown_picture.h: the pictures that controls show, each freed once: when another takes its place, or with
// the control.

#pragma once

#include <X11/Intrinsic.h>

#include "toolkit/pixmaps.h"

namespace kite {

// The control shows this picture now; XmUNSPECIFIED_PIXMAP for none.
void keepShownPicture(Widget control, Pixmap picture);

}  // namespace kite
