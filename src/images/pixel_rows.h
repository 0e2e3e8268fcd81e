// pixel_rows.h: rows of a picture, turned into rows of the display's pixels.

#pragma once

#include <kitegui.h>

#include <array>
#include <functional>
#include <optional>
#include <span>
#include <unordered_map>

#include "images/bmp.h"
#include "images/rgb.h"
#include "images/true_colour.h"

namespace kite::images {

// Pictures with a palette: only the entries that are drawn are allocated.
class IndexedPixels {
public:
    IndexedPixels(ImagePalette& palette, std::uint32_t undrawn);

    void convert(std::span<const bmp::Index> from, std::span<std::uint32_t> to);

private:
    static constexpr std::size_t kColours = 256;

    // The undrawn index comes first.
    static std::size_t slot(bmp::Index index) { return static_cast<std::size_t>(index + 1); }

    void ask(bmp::Index index);

    ImagePalette& palette_;
    std::uint32_t undrawn_;
    // Asked for once a load. kAsk is no pixel: those have 32 bits.
    static constexpr std::uint64_t kAsk = ~std::uint64_t{0};
    std::array<std::uint64_t, kColours + 1> pixels_;
};

// Pictures of 24 bits.
class DirectPixels {
public:
    using Allocate = std::function<std::optional<AllocatedColour>(Rgb)>;
    using Background = std::optional<std::uint32_t> (*)();

    // Where a display has exactly the grey 191, 191, 191, the background shows in its place; none: the
    // grey itself.
    DirectPixels(Allocate allocate, Background background, std::uint32_t undrawn);

    // With colours that are computed: `allocate` is not called then.
    void useComputed(const TrueColour* computed);

    void convert(std::span<const bmp::Bgr> from, std::span<std::uint32_t> to);

private:
    struct Hash {
        std::size_t operator()(Rgb colour) const
        {
            return static_cast<std::size_t>(colour.red << 16 | colour.green << 8 | colour.blue);
        }
    };

    std::uint32_t pixelOf(Rgb colour);
    std::uint32_t newPixel(Rgb colour);

    Allocate allocate_;
    Background background_;
    std::uint32_t undrawn_;
    const TrueColour* computed_ = nullptr;
    std::unordered_map<Rgb, std::uint32_t, Hash> known_;  // pixels, for one load
};

}  // namespace kite::images
