// decoration.h: where the frame stands, with the window that the window manager puts around it.

#pragma once

#include <X11/Intrinsic.h>

#include "frame/saved_geometry.h"

namespace kite {

// Notes the decoration whenever the window manager takes the shell into one.
void watchDecoration(Widget shell);

// The frame is gone, and its decoration with it.
void forgetDecoration();

// The host is about to ask for this place: the shell has these values when the window manager has
// answered. Negative ones stay as they are.
void noteRequest(Widget shell, const settings::Geometry& place);

// Where the shell stands, or will stand: its corner with the decoration, when one is known, and its size
// without.
settings::Geometry placeOf(Widget shell);

}  // namespace kite
