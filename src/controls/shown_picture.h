// shown_picture.h: the pictures that controls show, each freed once: when another takes its place, or with
// the control.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

// The control shows this picture, and owns it; XmUNSPECIFIED_PIXMAP for none.
void showPicture(Widget control, Pixmap picture);

}  // namespace kite
