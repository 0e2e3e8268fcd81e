#include "frame/saved_geometry.h"

namespace kite::savedGeometry {

namespace {

// The widest border and the highest title bar that count as a decoration, exclusive.
constexpr Position kImplausibleOffset{30, 70};

// Written without a sum: a profile may hold any integer.
bool fits(int start, int extent, int least, int available)
{
    return start >= 0 && extent >= least && extent <= available && start <= available - extent;
}

bool isPlausible(const Position& offset)
{
    return offset.x >= 0 && offset.x < kImplausibleOffset.x && offset.y >= 0 &&
           offset.y < kImplausibleOffset.y;
}

}  // namespace

settings::Geometry toOpenWith(const settings::Geometry& saved, const Size& screen)
{
    if (fits(saved.x, saved.width, kLeastWidth, screen.width) &&
        fits(saved.y, saved.height, kLeastHeight, screen.height))
        return saved;
    return {(screen.width - kDefaultWidth) / 2, (screen.height - kDefaultHeight) / 2, kDefaultWidth,
            kDefaultHeight};
}

Position withDecoration(const Position& frame, const Position& offsetInDecoration)
{
    if (!isPlausible(offsetInDecoration)) return {0, 0};
    return {frame.x - offsetInDecoration.x, frame.y - offsetInDecoration.y};
}

}  // namespace kite::savedGeometry
