// colours.h: pixel values of a widget's screen.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

Pixel blackPixel(Widget widget);
Pixel whitePixel(Widget widget);

struct Colour {
    unsigned short red, green, blue;
};

// Allocates a colour in the default colormap of the widget's screen; the white pixel when that colormap
// is full.
Pixel allocateColour(Widget widget, Colour colour);

}  // namespace kite
