// pointer_picture.h: the cursor as the server draws it at the pointer now.

#pragma once

#include <vector>

#include "geometry.h"

namespace kite::testing {

struct PointerPicture {
    int width = 0;
    int height = 0;
    int hotX = 0;
    int hotY = 0;
    std::vector<unsigned long> pixels;

    bool operator==(const PointerPicture&) const = default;
};

PointerPicture pointerPicture();

// Moves the pointer, and waits until the server has it there: what a robot does may still be under way.
void pointTo(Point onScreen);

// The picture of a shape of the cursor font. Moves the pointer.
PointerPicture pictureOfShape(unsigned shape);

// Waits until the pointer looks so. The application under test stands still meanwhile: what it has not
// sent to the server cannot be seen.
bool pointerBecomes(const PointerPicture& picture);

}  // namespace kite::testing
