#include "bmp_file.h"

namespace kite::testing {

namespace {

constexpr char kPadding = '\xA5';
constexpr std::uint32_t kHeaderSize = 54;

std::string word16(std::uint32_t value)
{
    return {static_cast<char>(value & 0xFF), static_cast<char>(value >> 8 & 0xFF)};
}

std::string word32(std::uint32_t value)
{
    return word16(value & 0xFFFF) + word16(value >> 16);
}

std::string padded(std::string row)
{
    while (row.size() % 4 != 0) row += kPadding;
    return row;
}

std::string packedColours(const std::vector<BmpFile::Colour>& colours)
{
    std::string row;
    for (const BmpFile::Colour& colour : colours)
        for (const std::uint8_t component : {colour.blue, colour.green, colour.red})
            row += static_cast<char>(component);
    return padded(row);
}

std::string bytesOf(const BmpFile::Palette& palette)
{
    std::string bytes;
    for (const BmpFile::Colour& colour : palette)
        for (const int byte : {int{colour.blue}, int{colour.green}, int{colour.red}, 0x77})
            bytes += static_cast<char>(byte);
    return bytes;
}

template <typename Rows>
void setSize(BmpFile& file, const Rows& rows)
{
    file.width = static_cast<std::uint32_t>(rows.front().size());
    file.height = static_cast<std::uint32_t>(rows.size());
}

// A short palette is told in the header.
void setPalette(BmpFile& file, int bits, const BmpFile::Palette& palette)
{
    file.bits = static_cast<std::uint16_t>(bits);
    file.palette = palette;
    if (palette.size() < (std::size_t{1} << bits))
        file.coloursUsed = static_cast<std::uint32_t>(palette.size());
}

}  // namespace

std::string packedRow(int bits, const std::vector<int>& indexes)
{
    std::string row;
    int used = 8;  // bits of the last byte
    for (const int index : indexes) {
        if (used == 8) {
            row += '\0';
            used = 0;
        }
        used += bits;
        row.back() = static_cast<char>(row.back() | index << (8 - used));
    }
    return padded(row);
}

BmpFile BmpFile::indexed(int bits, const Palette& palette, const Indexes& rows)
{
    BmpFile file;
    setSize(file, rows);
    setPalette(file, bits, palette);
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) file.data += packedRow(bits, *row);
    return file;
}

BmpFile BmpFile::direct(const Colours& rows)
{
    BmpFile file;
    setSize(file, rows);
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) file.data += packedColours(*row);
    return file;
}

BmpFile BmpFile::inRuns(int bits, const Palette& palette, int width, int height,
                        const std::string& runs)
{
    BmpFile file;
    file.width = static_cast<std::uint32_t>(width);
    file.height = static_cast<std::uint32_t>(height);
    setPalette(file, bits, palette);
    file.compression = bits == 8 ? 1 : 2;
    file.data = runs;
    return file;
}

std::string BmpFile::bytes() const
{
    const std::string colours = bytesOf(palette);
    const auto offset = kHeaderSize + static_cast<std::uint32_t>(colours.size() + gap.size());
    const auto size = offset + static_cast<std::uint32_t>(data.size());
    return magic + word32(fileSize.value_or(size)) + word16(0) + word16(0) +
           word32(dataOffset.value_or(offset)) + word32(infoHeaderSize) + word32(width) +
           word32(height) + word16(planes) + word16(bits) + word32(compression) + word32(0) +
           word32(2835) + word32(2835) + word32(coloursUsed) + word32(0) + colours + gap + data;
}

}  // namespace kite::testing
