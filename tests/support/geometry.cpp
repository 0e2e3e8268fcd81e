#include "geometry.h"

#include <ostream>

namespace kite::testing {

std::ostream& operator<<(std::ostream& out, Point point)
{
    return out << '(' << point.x << ", " << point.y << ')';
}

std::ostream& operator<<(std::ostream& out, const Rect& rect)
{
    return out << rect.width << " x " << rect.height << " at (" << rect.x << ", " << rect.y << ')';
}

}  // namespace kite::testing
