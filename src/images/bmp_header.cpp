#include "images/bmp_header.h"

#include <array>
#include <cstddef>

namespace kite::images::bmp {

namespace {

constexpr std::size_t kHeaderBytes = 54;  // the file header's 14 and the info header's 40
constexpr std::uint32_t kInfoHeaderSize = 40;
constexpr std::uint32_t kLeastDataOffset = 52;  // two bytes inside the header: such files exist

using Bytes = std::array<std::uint8_t, kHeaderBytes>;

std::uint32_t word16(const Bytes& bytes, std::size_t at)
{
    return static_cast<std::uint32_t>(bytes[at] | bytes[at + 1] << 8);
}

std::uint32_t word32(const Bytes& bytes, std::size_t at)
{
    return word16(bytes, at) | word16(bytes, at + 2) << 16;
}

struct DepthRule {
    std::uint32_t bits;
    std::uint32_t compression;
};

constexpr DepthRule kAccepted[] = {{1, 0}, {4, 0}, {4, 2}, {8, 0}, {8, 1}, {24, 0}};

bool isAccepted(std::uint32_t bits, std::uint32_t compression)
{
    for (const DepthRule& rule : kAccepted)
        if (rule.bits == bits && rule.compression == compression) return true;
    return false;
}

// Heights of pictures that begin at the top are negative: as unsigned words they are beyond the limit.
bool isSide(std::uint32_t pixels)
{
    return pixels >= 1 && pixels <= kLargestSide;
}

}  // namespace

std::optional<Header> readHeader(ByteSource& source)
{
    Bytes bytes{};
    if (!source.read(bytes) || bytes[0] != 'B' || bytes[1] != 'M') return std::nullopt;
    const std::uint32_t fileSize = word32(bytes, 2);
    const std::uint32_t dataOffset = word32(bytes, 10);
    const std::uint32_t infoHeaderSize = word32(bytes, 14);
    const std::uint32_t width = word32(bytes, 18);
    const std::uint32_t height = word32(bytes, 22);
    const std::uint32_t bits = word16(bytes, 28);
    const std::uint32_t compression = word32(bytes, 30);
    if (infoHeaderSize != kInfoHeaderSize || dataOffset < kLeastDataOffset ||
        fileSize <= dataOffset || !isSide(width) || !isSide(height) ||
        !isAccepted(bits, compression))
        return std::nullopt;
    return Header{dataOffset,
                  static_cast<int>(width),
                  static_cast<int>(height),
                  static_cast<int>(bits),
                  static_cast<Compression>(compression),
                  word32(bytes, 46)};
}

std::optional<std::vector<Rgb>> readPalette(const Header& header, ByteSource& source)
{
    const std::uint32_t full = 1U << header.bitsPerPixel;
    const bool isShort = header.coloursUsed >= 1 && header.coloursUsed < full;
    std::vector<Rgb> palette(isShort ? header.coloursUsed : full);
    for (Rgb& colour : palette) {
        std::array<std::uint8_t, 4> entry{};  // blue, green, red, reserved
        if (!source.read(entry)) return std::nullopt;
        colour = {entry[2], entry[1], entry[0]};
    }
    return palette;
}

std::uint64_t rowBytes(const Header& header)
{
    return static_cast<std::uint64_t>((header.width * header.bitsPerPixel + 31) / 32 * 4);
}

std::uint64_t leastDataSize(const Header& header)
{
    constexpr std::uint64_t kEndOfBitmap = 2;  // the bytes of that escape
    return header.isInRuns() ? kEndOfBitmap
                             : rowBytes(header) * static_cast<std::uint64_t>(header.height);
}

}  // namespace kite::images::bmp
