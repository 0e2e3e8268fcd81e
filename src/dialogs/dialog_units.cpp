#include "dialogs/dialog_units.h"

#include <algorithm>
#include <limits>

namespace kite {

namespace {

constexpr double kLetters = 26.0;  // of either case
constexpr double kUnitsAcross = 4.0;
constexpr double kUnitsDown = 8.0;

}  // namespace

// The alphabet's 52 letters count as 26, plus one pixel to round up; halving gives one letter.
DialogUnits::DialogUnits(const FontMeasures& font)
    : horizontal_((font.alphabetWidth / kLetters + 1.0) / 2.0 / kUnitsAcross),
      vertical_(font.lineHeight / kUnitsDown)
{
}

int DialogUnits::truncated(double pixels)
{
    constexpr double kLeast = std::numeric_limits<int>::min() / 4.0;
    constexpr double kMost = std::numeric_limits<int>::max() / 4.0;  // room for what is added later
    return static_cast<int>(std::clamp(pixels, kLeast, kMost));
}

}  // namespace kite
