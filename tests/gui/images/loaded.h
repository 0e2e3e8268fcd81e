// loaded.h: pictures as the server has them.

#pragma once

#include <X11/Intrinsic.h>

#include <string>
#include <vector>

#include "bmp_file.h"
#include "images/image_loader.h"

namespace kite::testing {

using Pixels = std::vector<std::vector<Pixel>>;  // rows, from the top

inline constexpr BmpFile::Colour kRed{255, 0, 0};
inline constexpr BmpFile::Colour kGreen{0, 255, 0};
inline constexpr BmpFile::Colour kBlue{0, 0, 255};
inline constexpr BmpFile::Colour kGrey{191, 191, 191};

Screen* defaultScreen();

// Of the pixmap, read from the server.
Pixels pixelsOf(Pixmap pixmap);
unsigned depthOf(Pixmap pixmap);

// Writes the bytes to a file and loads it.
images::Picture loadBytes(const std::string& bytes, Pixel undrawn = 0,
                          const std::string& name = "picture.bmp");

// The same, read back and freed; empty when it was refused.
Pixels pixelsLoaded(const std::string& bytes, Pixel undrawn = 0);

// What the server allocates for it.
Pixel serverPixel(BmpFile::Colour colour);

// Many colours; the same ones every time.
BmpFile::Colours noise(int width, int height);
BmpFile::Palette manyColours();

}  // namespace kite::testing
