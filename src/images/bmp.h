// bmp.h: the reader of Windows BMP files: from bytes to rows of pixels. It knows nothing of displays.

#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "images/bmp_header.h"
#include "images/byte_source.h"
#include "images/rgb.h"

namespace kite::images::bmp {

// A pixel as the file has it.
struct Bgr {
    std::uint8_t blue;
    std::uint8_t green;
    std::uint8_t red;
};

// A palette index, or kUndrawn.
using Index = std::int16_t;
inline constexpr Index kUndrawn = -1;

// Takes the rows, the lowest first, each once. Rows of which nothing is drawn do not come. y counts from
// the top.
class Sink {
public:
    virtual ~Sink() = default;

    // The picture can begin. The palette is empty for 24 bits. False gives the picture up.
    virtual bool begin(const Header& header, const std::vector<Rgb>& palette) = 0;

    virtual void row(int y, std::span<const Index> indexes) = 0;
    virtual void row(int y, std::span<const Bgr> pixels) = 0;
};

// False when the file is no BMP of a known kind, is not complete, or the sink gave up: what the sink has
// got is of no use then.
bool decode(ByteSource& source, Sink& sink);

}  // namespace kite::images::bmp
