// bmp_header.h: what stands before the pixels of a BMP file.

#pragma once

#include <optional>
#include <vector>

#include "images/byte_source.h"
#include "images/rgb.h"

namespace kite::images::bmp {

inline constexpr int kLargestSide = 32767;  // pixels: what an X drawable can have

enum class Compression : std::uint32_t { Uncompressed = 0, Rle8 = 1, Rle4 = 2 };

struct Header {
    std::uint32_t dataOffset = 0;
    int width = 0;   // pixels
    int height = 0;  // pixels
    int bitsPerPixel = 0;
    Compression compression = Compression::Uncompressed;
    std::uint32_t coloursUsed = 0;

    bool isIndexed() const { return bitsPerPixel <= 8; }

    // Runs can leave pixels out.
    bool isInRuns() const { return compression != Compression::Uncompressed; }
};

// None when the file is of another kind, or ends.
std::optional<Header> readHeader(ByteSource& source);

// Of an indexed picture, right behind the header. None when the file ends.
std::optional<std::vector<Rgb>> readPalette(const Header& header, ByteSource& source);

// Uncompressed rows are padded to whole 32-bit words.
std::uint64_t rowBytes(const Header& header);

// The pixels cannot take fewer bytes than this.
std::uint64_t leastDataSize(const Header& header);

}  // namespace kite::images::bmp
