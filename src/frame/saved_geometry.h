// saved_geometry.h: where the frame opens and which place is saved. Pure arithmetic.

#pragma once

#include "frame/settings.h"

namespace kite::savedGeometry {

constexpr int kLeastWidth = 300;
constexpr int kLeastHeight = 200;
constexpr int kDefaultWidth = 450;
constexpr int kDefaultHeight = 300;

struct Size {
    int width, height;
};

struct Position {
    int x, y;
};

// The saved place, when all of it fits: it is kept or dropped as a whole. Otherwise the default size,
// centred.
settings::Geometry toOpenWith(const settings::Geometry& saved, const Size& screen);

// The position of the frame with its decoration. A decoration that no window manager draws makes it
// 0, 0.
Position withDecoration(const Position& frame, const Position& offsetInDecoration);

}  // namespace kite::savedGeometry
