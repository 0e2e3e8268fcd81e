// dialog_units.h: places and sizes that grow with the dialog's font. No X here.
//
// A horizontal unit is a quarter of the rounded average width of a letter, a vertical one an eighth of
// the height of a line. Fractions of pixels count until the very end, where they are cut off.

#pragma once

namespace kite {

// What is measured of a font, in pixels.
struct FontMeasures {
    int alphabetWidth;  // of the 52 letters, small and capital
    int lineHeight;     // the largest ascent and descent of its characters, and 1
};

// The letters that make the alphabet's width.
inline constexpr char kAlphabet[] = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";

class DialogUnits {
public:
    DialogUnits() = default;
    explicit DialogUnits(const FontMeasures& font);

    double horizontal() const { return horizontal_; }  // pixels to a unit
    double vertical() const { return vertical_; }

    // Cut towards zero, and at a quarter of what an int holds.
    int pixelsAcross(double units) const { return truncated(units * horizontal_); }
    int pixelsDown(double units) const { return truncated(units * vertical_); }

private:
    static int truncated(double pixels);

    double horizontal_ = 0;
    double vertical_ = 0;
};

}  // namespace kite
