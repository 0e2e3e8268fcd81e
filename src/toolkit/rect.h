// rect.h: a place in pixels, as X has it.

#pragma once

#include <X11/Intrinsic.h>

#include <algorithm>
#include <limits>

namespace kite {

struct Rect {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    int right() const { return x + width; }
    int bottom() const { return y + height; }

    // Larger by that much on every side.
    Rect grownBy(int margin) const
    {
        return {x - margin, y - margin, width + 2 * margin, height + 2 * margin};
    }
};

// The nearest values that X has for a coordinate and for a size: both are 16 bits wide there.
constexpr Position asPosition(int pixels)
{
    return static_cast<Position>(std::clamp<int>(pixels, std::numeric_limits<Position>::min(),
                                                 std::numeric_limits<Position>::max()));
}

constexpr Dimension asDimension(int pixels)
{
    return static_cast<Dimension>(std::clamp<int>(pixels, 0, std::numeric_limits<Position>::max()));
}

}  // namespace kite
