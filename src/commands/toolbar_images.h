// toolbar_images.h: the picture of a toolbar button, as it is and greyed.

#pragma once

#include <X11/Intrinsic.h>

#include <string>

#include "toolkit/pixmaps.h"

namespace kite::commands {

inline constexpr int kImageSize = 21;  // pixels, both ways

// The file of an image that the host names.
std::string imagePath(const char* image);

// A copy of the image in which every other pixel is the background, like a checkerboard.
OwnedPixmap greyed(Screen* screen, Pixmap image, Pixel background);

}  // namespace kite::commands
