// image_palette.h: the palette of the picture that is being loaded (the class ImagePalette itself stands in
// the public header).

#pragma once

#include <X11/Xlib.h>
#include <kitegui.h>

namespace kite::images {

// Reset and filled for each picture with a palette.
ImagePalette& loadingPalette();

// Within it palettes allocate on this display: a picture can be for another than the current one.
class PaletteDisplay {
public:
    explicit PaletteDisplay(Display* display);
    ~PaletteDisplay();
    PaletteDisplay(const PaletteDisplay&) = delete;
    PaletteDisplay& operator=(const PaletteDisplay&) = delete;
};

}  // namespace kite::images
