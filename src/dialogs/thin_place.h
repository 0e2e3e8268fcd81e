// thin_place.h: lines, and bars along a line: in a single row they are no higher than a line.

#pragma once

namespace kite {

// In units, before they are pixels.
struct ThinSize {
    double top;
    double width;
    double height;

    bool isEmpty() const { return width < 1 || height < 1; }
    bool isPoint() const { return width == 1 && height == 1; }
};

// In rows: fewer than 2 rows are a line in the middle of the row; more are as high as other controls, and
// a unit higher at the top and the bottom when they are wider than a line, to lie around what they frame.
// With absolute positions the rows are the height itself.
ThinSize thinSize(int row, int rows, int width);

}  // namespace kite
