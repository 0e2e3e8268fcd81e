#include "images/true_colour.h"

#include <algorithm>
#include <bit>
#include <cstdlib>

namespace kite::images {

namespace {

constexpr std::uint32_t kFull = 0xFFFF;

// Servers keep so many bits of a component, and spread what is left over the whole range again.
class Precision {
public:
    explicit Precision(int bits) : shift_(16 - bits), limit_((1U << bits) - 1) {}

    std::uint32_t reduced(std::uint32_t component) const
    {
        return (component >> shift_) * kFull / limit_;
    }

private:
    int shift_;
    std::uint32_t limit_;
};

std::uint32_t distance(std::uint32_t a, std::uint32_t b)
{
    return a > b ? a - b : b - a;
}

}  // namespace

// The server's map has an entry for each value of the mask; the nearest one is taken, the lower of two
// that are equally near.
TrueColour::Component TrueColour::componentOf(unsigned long mask, int bitsPerComponent)
{
    Component component;
    if (mask == 0) return component;
    const int offset = std::countr_zero(mask);
    const auto last = static_cast<std::uint32_t>(mask >> offset);
    const Precision precision{std::clamp(bitsPerComponent, 1, 16)};
    const auto entry = [&](std::uint32_t index) { return precision.reduced(index * kFull / last); };
    std::uint32_t index = 0;  // entries rise, and so do the wanted components
    for (unsigned value = 0; value < component.pixels.size(); ++value) {
        const std::uint32_t wanted = precision.reduced(wide(static_cast<std::uint8_t>(value)));
        while (index < last && distance(entry(index + 1), wanted) < distance(entry(index), wanted))
            ++index;
        component.pixels[value] = index << offset;
        component.reported[value] = static_cast<std::uint16_t>(entry(index));
    }
    return component;
}

TrueColour::TrueColour(const VisualMasks& masks)
    : red_(componentOf(masks.red, masks.bitsPerComponent)),
      green_(componentOf(masks.green, masks.bitsPerComponent)),
      blue_(componentOf(masks.blue, masks.bitsPerComponent))
{
    // A pixel of 32 bits has more than colours; servers set what is left.
    constexpr int kWholeWord = 32;
    if (masks.depth < kWholeWord) return;
    const auto rest = static_cast<std::uint32_t>(~(masks.red | masks.green | masks.blue));
    for (std::uint32_t& pixel : red_.pixels) pixel |= rest;
}

AllocatedColour TrueColour::allocate(Rgb wanted) const
{
    return {pixel(wanted.red, wanted.green, wanted.blue), red_.reported[wanted.red],
            green_.reported[wanted.green], blue_.reported[wanted.blue]};
}

bool TrueColour::reports(std::uint16_t red, std::uint16_t green, std::uint16_t blue) const
{
    const auto has = [](const Component& component, std::uint16_t value) {
        return std::find(component.reported.begin(), component.reported.end(), value) !=
               component.reported.end();
    };
    return has(red_, red) && has(green_, green) && has(blue_, blue);
}

}  // namespace kite::images
