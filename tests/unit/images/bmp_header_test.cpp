// bmp_header_test.cpp: which files are taken for a picture, and their palettes.

#include <gmock/gmock.h>

#include <functional>

#include "decoded.h"

using namespace kite::testing;
using kite::images::Rgb;
using ::testing::ElementsAre;

namespace {

constexpr std::uint32_t kHeaderBytes = 54;

BmpFile onePixel()
{
    return BmpFile::direct({{{1, 2, 3}}});
}

BmpFile oneIndex(int bits)
{
    return BmpFile::indexed(bits, {{1, 2, 3}}, {{0}});
}

struct Row {
    const char* what;
    bool isAccepted;
    std::function<void(BmpFile&)> change;
};

const Row kChangesOfOnePixel[] = {
    {"nothing", true, [](BmpFile&) {}},
    {"another magic", false, [](BmpFile& file) { file.magic = "BA"; }},
    {"a magic in lower case", false, [](BmpFile& file) { file.magic = "bM"; }},
    {"the 12-byte header", false, [](BmpFile& file) { file.infoHeaderSize = 12; }},
    {"the 108-byte header", false, [](BmpFile& file) { file.infoHeaderSize = 108; }},
    {"the 124-byte header", false, [](BmpFile& file) { file.infoHeaderSize = 124; }},
    {"a header of 39 bytes", false, [](BmpFile& file) { file.infoHeaderSize = 39; }},
    {"a header of 41 bytes", false, [](BmpFile& file) { file.infoHeaderSize = 41; }},
    {"pixels 2 bytes inside the header", true, [](BmpFile& file) { file.dataOffset = 52; }},
    {"pixels 3 bytes inside the header", false, [](BmpFile& file) { file.dataOffset = 51; }},
    {"no data offset", false, [](BmpFile& file) { file.dataOffset = 0; }},
    {"a file size just beyond the offset", true, [](BmpFile& file) { file.fileSize = 55; }},
    {"a file size equal to the offset", false, [](BmpFile& file) { file.fileSize = 54; }},
    {"no file size", false, [](BmpFile& file) { file.fileSize = 0; }},
    {"a file size beyond the file", true, [](BmpFile& file) { file.fileSize = 0xFFFFFFFF; }},
    {"no width", false, [](BmpFile& file) { file.width = 0; }},
    {"a negative width", false, [](BmpFile& file) { file.width = 0xFFFFFFFF; }},
    {"no height", false, [](BmpFile& file) { file.height = 0; }},
    {"rows from the top", false, [](BmpFile& file) { file.height = 0xFFFFFFFF; }},
    {"other planes", true, [](BmpFile& file) { file.planes = 77; }},
    {"colours used", true, [](BmpFile& file) { file.coloursUsed = 5; }},
    {"an end inside the header", false,
     [](BmpFile& file) { file.magic = "M"; }},  // one byte is missing, all others moved
};

}  // namespace

TEST(BmpHeader, IsAcceptedOrRefused)
{
    for (const Row& row : kChangesOfOnePixel) {
        BmpFile file = onePixel();
        row.change(file);
        EXPECT_EQ(decode(file.bytes()).has_value(), row.isAccepted) << row.what;
    }
}

TEST(BmpHeader, RefusesEveryOtherDepthAndCompression)
{
    const auto isAccepted = [](int bits, std::uint32_t compression) {
        BmpFile file = onePixel();
        file.bits = static_cast<std::uint16_t>(bits);
        file.compression = compression;
        file.palette.resize(bits <= 8 ? std::size_t{1} << bits : 0);
        file.data = std::string("\0\1\0\0", 4);  // one row of any depth, and the end of runs
        return decode(file.bytes()).has_value();
    };
    for (int bits = 0; bits <= 64; ++bits)
        for (std::uint32_t compression = 0; compression <= 5; ++compression) {
            const bool isPlain = compression == 0 && (bits == 1 || bits == 4 || bits == 8);
            const bool isRuns = (bits == 8 && compression == 1) || (bits == 4 && compression == 2);
            const bool isDirect = bits == 24 && compression == 0;
            EXPECT_EQ(isAccepted(bits, compression), isPlain || isRuns || isDirect)
                << bits << " bits, compression " << compression;
        }
    EXPECT_FALSE(isAccepted(8, 0x10000));
    EXPECT_FALSE(isAccepted(0xFFFF, 0));
}

TEST(BmpHeader, RefusesEveryFileThatEndsInIt)
{
    const std::string whole = onePixel().bytes();
    for (std::size_t length = 0; length < kHeaderBytes; ++length)
        EXPECT_FALSE(decode(whole.substr(0, length))) << length;
    EXPECT_TRUE(decode(whole));
}

// Runs of a few bytes can fill any size.
TEST(BmpHeader, LimitsTheSidesToWhatDisplaysCanHave)
{
    const std::string end("\0\1", 2);
    const auto refuses = [&](std::uint32_t width, std::uint32_t height) {
        BmpFile file = BmpFile::inRuns(8, {{1, 2, 3}}, 1, 1, end);
        file.width = width;
        file.height = height;
        return isRefusedAtOnce(file.bytes());
    };
    EXPECT_FALSE(refuses(32767, 1));
    EXPECT_FALSE(refuses(1, 32767));
    EXPECT_FALSE(refuses(32767, 32767));
    EXPECT_TRUE(refuses(32768, 1));
    EXPECT_TRUE(refuses(1, 32768));
    EXPECT_TRUE(refuses(65536, 65536));
    EXPECT_TRUE(refuses(0x80000000, 1));
    EXPECT_TRUE(refuses(1, 0x7FFFFFFF));
}

TEST(BmpHeader, RefusesAtOnceWhatTheFileIsTooShortFor)
{
    BmpFile file = onePixel();
    file.width = 20000;
    file.height = 20000;
    EXPECT_TRUE(isRefusedAtOnce(file.bytes()));
    file = onePixel();
    file.data.pop_back();  // of the padding
    EXPECT_TRUE(isRefusedAtOnce(file.bytes()));
    file = onePixel();
    file.fileSize = 0xFFFFFFFF;
    file.dataOffset = 0xFFFFFFFE;
    EXPECT_TRUE(isRefusedAtOnce(file.bytes()));
    const std::string end("\0\1", 2);
    EXPECT_FALSE(isRefusedAtOnce(BmpFile::inRuns(8, {{1, 2, 3}}, 1, 1, end).bytes()));
    EXPECT_TRUE(isRefusedAtOnce(BmpFile::inRuns(8, {{1, 2, 3}}, 1, 1, end.substr(1)).bytes()));
}

TEST(BmpHeader, PixelsMayStandAnywhereBehind)
{
    BmpFile file = oneIndex(8);
    file.gap = "between the palette and the pixels";
    const auto decoded = decode(file.bytes());
    ASSERT_TRUE(decoded);
    EXPECT_THAT(decoded->rows(), ElementsAre(ElementsAre(0)));
    // They may also begin in the palette.
    file = oneIndex(8);
    file.dataOffset = kHeaderBytes;
    EXPECT_THAT(decode(file.bytes())->rows(), ElementsAre(ElementsAre(3)));
}

TEST(BmpPalette, HasItsColoursAsRedGreenBlue)
{
    const auto decoded = decode(oneIndex(8).bytes());
    ASSERT_TRUE(decoded);
    EXPECT_THAT(decoded->palette, ElementsAre(Rgb{1, 2, 3}));
    EXPECT_TRUE(decode(onePixel().bytes())->palette.empty());
}

// As many as the depth has, unless the header tells a smaller number.
TEST(BmpPalette, HasTheLengthThatTheHeaderTells)
{
    struct {
        int bits;
        std::uint32_t used;
        std::size_t length;
    } const rows[] = {{1, 0, 2}, {1, 1, 1},     {1, 2, 2},     {1, 3, 2},     {4, 0, 16},
                      {4, 1, 1}, {4, 15, 15},   {4, 16, 16},   {4, 17, 16},   {8, 0, 256},
                      {8, 1, 1}, {8, 255, 255}, {8, 256, 256}, {8, 257, 256}, {8, 0xFFFFFFFF, 256}};
    for (const auto& row : rows) {
        BmpFile file = oneIndex(row.bits);
        file.coloursUsed = row.used;
        file.palette.resize(256);
        const auto decoded = decode(file.bytes());
        ASSERT_TRUE(decoded);
        EXPECT_EQ(decoded->palette.size(), row.length) << row.bits << " bits, used " << row.used;
    }
}

TEST(BmpPalette, IsRefusedWhenTheFileEndsInIt)
{
    BmpFile file = oneIndex(4);
    file.dataOffset = kHeaderBytes;  // the pixels would be there
    file.coloursUsed = 2;
    file.palette.resize(2);
    file.data.clear();
    const std::string whole = file.bytes();
    EXPECT_TRUE(decode(whole));
    EXPECT_FALSE(decode(whole.substr(0, whole.size() - 1)));  // without the reserved byte
}
