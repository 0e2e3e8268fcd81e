// loaded.h: pictures as the server has them.

#pragma once

#include <X11/Intrinsic.h>

#include <filesystem>
#include <string>
#include <vector>

#include "images/image_loader.h"

namespace kite::testing {

using Pixels = std::vector<std::vector<Pixel>>;  // rows, from the top

Screen* defaultScreen();

// Of the pixmap, read from the server.
Pixels pixelsOf(const images::Picture& picture);

// Writes the bytes to a file and loads it.
images::Picture loadBytes(const std::string& bytes, Pixel undrawn = 0,
                          const std::string& name = "picture.bmp");

// The same, read back and freed; empty when it was refused.
Pixels pixelsLoaded(const std::string& bytes, Pixel undrawn = 0);

// What the server allocates for it.
Pixel serverPixel(int red, int green, int blue);

// Replies that this process has waited for on the library's display.
template <typename Action>
unsigned long requestsDuring(Display* display, const Action& action)
{
    const unsigned long before = NextRequest(display);
    action();
    return NextRequest(display) - before;
}

}  // namespace kite::testing
