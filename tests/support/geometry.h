// geometry.h: points and rectangles in pixels of the screen.

#pragma once

#include <iosfwd>

namespace kite::testing {

struct Point {
    int x = 0;
    int y = 0;

    bool operator==(const Point&) const = default;
    Point operator+(Point other) const { return {x + other.x, y + other.y}; }
};

struct Rect {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    bool operator==(const Rect&) const = default;
    Point corner() const { return {x, y}; }
    int right() const { return x + width; }    // the first column behind it
    int bottom() const { return y + height; }  // the first row below it
    Rect movedBy(Point way) const { return {x + way.x, y + way.y, width, height}; }
    Point centre() const { return {x + width / 2, y + height / 2}; }
    bool contains(Point p) const { return p.x >= x && p.y >= y && p.x < right() && p.y < bottom(); }
};

std::ostream& operator<<(std::ostream& out, Point point);
std::ostream& operator<<(std::ostream& out, const Rect& rect);

}  // namespace kite::testing
