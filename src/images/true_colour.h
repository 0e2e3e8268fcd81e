// true_colour.h: the colours of a TrueColor visual, computed as servers compute them.

#pragma once

#include <array>
#include <cstdint>

#include "images/rgb.h"

namespace kite::images {

struct VisualMasks {
    unsigned long red = 0;
    unsigned long green = 0;
    unsigned long blue = 0;
    int bitsPerComponent = 8;  // significant bits of a colour's 16
    int depth = 24;
};

class TrueColour {
public:
    explicit TrueColour(const VisualMasks& masks);

    AllocatedColour allocate(Rgb wanted) const;

    std::uint32_t pixel(std::uint8_t red, std::uint8_t green, std::uint8_t blue) const
    {
        return red_.pixels[red] | green_.pixels[green] | blue_.pixels[blue];
    }

    // The colour that is reported for some red, green and blue.
    bool reports(std::uint16_t red, std::uint16_t green, std::uint16_t blue) const;

private:
    // By the component that is asked for.
    struct Component {
        std::array<std::uint32_t, 256> pixels{};
        std::array<std::uint16_t, 256> reported{};
    };
    static Component componentOf(unsigned long mask, int bitsPerComponent);

    Component red_;
    Component green_;
    Component blue_;
};

}  // namespace kite::images
