#include "controls/item_number.h"

#include <cmath>
#include <cstdio>

namespace kite {

namespace {

constexpr double kLeastWrittenOut = 1e-8;
constexpr double kExponentEndsAt = 1e-4;

bool isWrittenOut(double value)
{
    const double size = std::fabs(value);
    return size >= kLeastWrittenOut && size < kExponentEndsAt;
}

}  // namespace

std::string itemNumber(double value)
{
    char text[64];
    if (!isWrittenOut(value)) {
        std::snprintf(text, sizeof text, "%-.14lG", value);
        return text;
    }
    std::snprintf(text, sizeof text, "%-.8f", value);
    std::string written{text};
    written.erase(written.find_last_not_of('0') + 1);
    return written;
}

}  // namespace kite
