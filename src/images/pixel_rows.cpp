#include "images/pixel_rows.h"

#include <utility>

namespace kite::images {

namespace {

// What a display that has the grey 191, 191, 191 exactly reports for it.
constexpr std::uint16_t kTransparentGrey = 0xBF00;

bool isTransparent(const AllocatedColour& colour)
{
    return colour.red == kTransparentGrey && colour.green == kTransparentGrey &&
           colour.blue == kTransparentGrey;
}

}  // namespace

IndexedPixels::IndexedPixels(ImagePalette& palette, std::uint32_t undrawn)
    : palette_(palette), undrawn_(undrawn)
{
    pixels_.fill(kAsk);
    pixels_[slot(bmp::kUndrawn)] = undrawn_;
}

void IndexedPixels::ask(bmp::Index index)
{
    pixels_[slot(index)] =
        palette_.isGood(index) ? static_cast<std::uint32_t>(palette_.get(index)) : undrawn_;
}

void IndexedPixels::convert(std::span<const bmp::Index> from, std::span<std::uint32_t> to)
{
    for (std::size_t x = 0; x < from.size(); ++x) {
        if (pixels_[slot(from[x])] == kAsk) ask(from[x]);
        to[x] = static_cast<std::uint32_t>(pixels_[slot(from[x])]);
    }
}

DirectPixels::DirectPixels(Allocate allocate, Background background, std::uint32_t undrawn)
    : allocate_(std::move(allocate)), background_(background), undrawn_(undrawn)
{
}

void DirectPixels::useComputed(const TrueColour* computed)
{
    // Where the grey may be among the colours, each one has to be looked at.
    if (computed && !computed->reports(kTransparentGrey, kTransparentGrey, kTransparentGrey))
        computed_ = computed;
}

std::uint32_t DirectPixels::newPixel(Rgb colour)
{
    const std::optional<AllocatedColour> allocated = allocate_(colour);
    if (!allocated) return undrawn_;
    return isTransparent(*allocated) ? background_().value_or(allocated->pixel) : allocated->pixel;
}

std::uint32_t DirectPixels::pixelOf(Rgb colour)
{
    const auto [entry, isNew] = known_.try_emplace(colour);
    if (isNew) entry->second = newPixel(colour);
    return entry->second;
}

void DirectPixels::convert(std::span<const bmp::Bgr> from, std::span<std::uint32_t> to)
{
    if (computed_) {
        for (std::size_t x = 0; x < from.size(); ++x)
            to[x] = computed_->pixel(from[x].red, from[x].green, from[x].blue);
        return;
    }
    for (std::size_t x = 0; x < from.size(); ++x)
        to[x] = pixelOf({from[x].red, from[x].green, from[x].blue});
}

}  // namespace kite::images
