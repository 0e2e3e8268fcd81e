// display_colours.h: the colours of a display: computed where that is safe, else asked for.

#pragma once

#include <X11/Xlib.h>

#include <optional>

#include "images/rgb.h"
#include "images/true_colour.h"

namespace kite::images {

// What computes the colours of the screen whose default colormap this is; null when the display has to be
// asked for each.
const TrueColour* computedColours(Display* display, Colormap colormap);

// None when the display refuses the colour or the colormap, or is null.
std::optional<AllocatedColour> allocateColour(Display* display, Colormap colormap, Rgb wanted);

}  // namespace kite::images
