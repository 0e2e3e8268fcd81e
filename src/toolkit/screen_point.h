// screen_point.h: places on the screen.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

// In pixels.
struct Point {
    int x = 0;
    int y = 0;

    bool operator==(const Point&) const = default;
    Point operator+(Point other) const { return {x + other.x, y + other.y}; }
    Point operator-(Point other) const { return {x - other.x, y - other.y}; }
};

// Where the inside of a widget begins.
Point originOnScreen(Widget widget);

// Where the pointer is, on the widget's screen. Costs a round trip.
Point pointerOnScreen(Widget widget);

}  // namespace kite
