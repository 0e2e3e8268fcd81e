#include "dialogs/placement.h"

#include <algorithm>

#include "dialogs/building.h"
#include "dialogs/layout_metrics.h"

namespace kite {

double topOf(int row, int offset)
{
    return building::usesAbsolutePositions() ? static_cast<double>(row)
                                             : static_cast<double>(row) * layout::kRowStep + offset;
}

double heightOfRows(int rows)
{
    return static_cast<double>(rows) * layout::kRowStep - layout::kRowGap;
}

Rect placed(int x, double top, int width, double height)
{
    const DialogUnits& units = building::units();
    return {units.pixelsAcross(static_cast<double>(x) + layout::kMargin),
            units.pixelsDown(top + layout::kMargin), std::max(0, units.pixelsAcross(width)),
            std::max(0, units.pixelsDown(height))};
}

}  // namespace kite
