// decoration.h: the window that the window manager puts around the frame.

#pragma once

#include <X11/Intrinsic.h>

#include "frame/saved_geometry.h"

namespace kite {

// Notes the decoration whenever the window manager takes the shell into one.
void watchDecoration(Widget shell);

// The frame is gone, and its decoration with it.
void forgetDecoration();

// Where the shell stands with its decoration, when one is known, else where it stands.
savedGeometry::Position decoratedPosition(Widget shell);

}  // namespace kite
