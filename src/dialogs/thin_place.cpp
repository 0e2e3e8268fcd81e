#include "dialogs/thin_place.h"

#include "dialogs/building.h"
#include "dialogs/placement.h"

namespace kite {

namespace {

constexpr int kMiddleOfRow = 5;  // units below the top of the row
constexpr int kAround = 1;       // units that a rectangle is larger at the top and at the bottom

}  // namespace

ThinSize thinSize(int row, int rows, int width)
{
    if (building::usesAbsolutePositions())
        return {topOf(row), static_cast<double>(width), static_cast<double>(rows)};
    if (rows < 2) return {topOf(row, kMiddleOfRow), static_cast<double>(width), 1};
    const double around = width > 1 ? kAround : 0;
    return {topOf(row) - around, static_cast<double>(width), heightOfRows(rows) + 2 * around};
}

}  // namespace kite
