// rgb.h: colours as picture files have them, and what a display makes of them.

#pragma once

#include <cstdint>

namespace kite::images {

struct Rgb {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    bool operator==(const Rgb&) const = default;
};

// Displays want 16 bits a component. The low byte stays 0, so that white is 0xFF00.
constexpr std::uint16_t wide(std::uint8_t component)
{
    return static_cast<std::uint16_t>(component << 8);
}

struct AllocatedColour {
    std::uint32_t pixel = 0;
    // What the display shows for it.
    std::uint16_t red = 0;
    std::uint16_t green = 0;
    std::uint16_t blue = 0;

    bool operator==(const AllocatedColour&) const = default;
};

}  // namespace kite::images
