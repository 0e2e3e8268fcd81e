// first_look.h: what a dialog looks like when it is shown: its size, its buttons, where the focus is.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

// Of the dialog under construction, whose controls are complete.
void prepareFirstLook();

// Rectangles are drawn around other controls, whichever of them was made first. The dialog is on the screen.
void lowerRectangles(Widget board);

}  // namespace kite
