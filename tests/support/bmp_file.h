// bmp_file.h: BMP files, made byte by byte: good ones, and bad ones in just one point.
//
//     host.addFile("images/icon.bmp", BmpFile::direct({{kRed, kBlue}}).bytes());
//
//     BmpFile file = BmpFile::indexed(4, palette, rows);
//     file.infoHeaderSize = 124;
//     std::string const refused = file.bytes();

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kite::testing {

struct BmpFile {
    struct Colour {
        std::uint8_t red = 0;
        std::uint8_t green = 0;
        std::uint8_t blue = 0;

        bool operator==(const Colour&) const = default;
    };
    using Palette = std::vector<Colour>;
    using Indexes = std::vector<std::vector<int>>;     // rows, from the top
    using Colours = std::vector<std::vector<Colour>>;  // rows, from the top

    // Uncompressed, of 1, 4 or 8 bits.
    static BmpFile indexed(int bits, const Palette& palette, const Indexes& rows);
    // 24 bits.
    static BmpFile direct(const Colours& rows);
    // Of 4 or 8 bits; the runs are the file's bytes.
    static BmpFile inRuns(int bits, const Palette& palette, int width, int height,
                          const std::string& runs);

    std::string magic = "BM";
    std::optional<std::uint32_t> fileSize;    // else what it is
    std::optional<std::uint32_t> dataOffset;  // else right behind the palette
    std::uint32_t infoHeaderSize = 40;
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::uint16_t planes = 1;
    std::uint16_t bits = 24;
    std::uint32_t compression = 0;
    std::uint32_t coloursUsed = 0;
    Palette palette;   // exactly these entries stand in the file
    std::string gap;   // between palette and pixels
    std::string data;  // pixels

    std::string bytes() const;
};

// A row of pixels as the file has it, padded with bytes that show when they are taken for pixels.
std::string packedRow(int bits, const std::vector<int>& indexes);

}  // namespace kite::testing
