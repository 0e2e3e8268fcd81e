// bmp_rows_test.cpp: uncompressed pixels.

#include <gmock/gmock.h>

#include "decoded.h"

using namespace kite::testing;
using kite::images::Rgb;
using ::testing::ElementsAre;

namespace {

constexpr BmpFile::Colour kBlack{};

// Every index that the depth has, in an order in which neighbours differ.
BmpFile::Indexes pattern(int bits, int width, int height)
{
    BmpFile::Indexes rows;
    for (int y = 0; y < height; ++y) {
        rows.emplace_back();
        for (int x = 0; x < width; ++x)
            rows.back().push_back((x * 7 + y * 3 + x / 5) & ((1 << bits) - 1));
    }
    return rows;
}

}  // namespace

// All widths around the padding of every depth.
TEST(BmpRows, OfPalettesAreReadWithTheirPadding)
{
    for (const int bits : {1, 4, 8})
        for (int width = 1; width <= 70; ++width) {
            const BmpFile::Indexes rows = pattern(bits, width, 3);
            const auto decoded = decode(BmpFile::indexed(bits, {kBlack}, rows).bytes());
            ASSERT_TRUE(decoded) << bits << " bits, width " << width;
            EXPECT_EQ(decoded->rows(), rows) << bits << " bits, width " << width;
            EXPECT_THAT(decoded->order, ElementsAre(2, 1, 0));
        }
}

TEST(BmpRows, HaveTheLeftPixelInTheHighBits)
{
    BmpFile file = BmpFile::indexed(4, {kBlack}, {{0, 0, 0}});
    file.data = "\x12\x34\x56\x78";
    EXPECT_THAT(decode(file.bytes())->rows(), ElementsAre(ElementsAre(1, 2, 3)));
    file = BmpFile::indexed(1, {kBlack}, {{0, 0, 0, 0, 0, 0, 0, 0, 0}});
    file.data = "\x81\x7F\xFF\xFF";
    EXPECT_THAT(decode(file.bytes())->rows(), ElementsAre(ElementsAre(1, 0, 0, 0, 0, 0, 0, 1, 0)));
}

TEST(BmpRows, OfColoursAreReadWithTheirPadding)
{
    for (int width = 1; width <= 9; ++width) {
        BmpFile::Colours rows(2);
        for (std::uint8_t x = 0; x < width; ++x) {
            rows[0].push_back({x, 100, 200});
            rows[1].push_back({30, x, 40});
        }
        const auto decoded = decode(BmpFile::direct(rows).bytes());
        ASSERT_TRUE(decoded) << width;
        ASSERT_EQ(decoded->colours.at(0).size(), static_cast<std::size_t>(width));
        for (std::uint8_t x = 0; x < width; ++x) {
            EXPECT_EQ(decoded->colours.at(0)[x], (Rgb{x, 100, 200})) << width;
            EXPECT_EQ(decoded->colours.at(1)[x], (Rgb{30, x, 40})) << width;
        }
    }
}

TEST(BmpRows, OfTwoColoursHaveTwoPaddingBytes)
{
    const BmpFile file = BmpFile::direct({{{1, 2, 3}, {4, 5, 6}}, {{7, 8, 9}, {10, 11, 12}}});
    EXPECT_EQ(file.data.size(), 2U * (2 * 3 + 2));
    const auto decoded = decode(file.bytes());
    EXPECT_THAT(decoded->colours.at(0), ElementsAre(Rgb{1, 2, 3}, Rgb{4, 5, 6}));
    EXPECT_THAT(decoded->colours.at(1), ElementsAre(Rgb{7, 8, 9}, Rgb{10, 11, 12}));
}

// The padding of the last row included.
TEST(BmpRows, AreRefusedWhenAnyByteIsMissing)
{
    for (const int bits : {1, 4, 8, 24}) {
        const BmpFile file = bits == 24 ? BmpFile::direct({{{1, 2, 3}}, {{4, 5, 6}}})
                                        : BmpFile::indexed(bits, {kBlack}, {{0}, {0}});
        const std::string whole = file.bytes();
        EXPECT_TRUE(decode(whole)) << bits;
        EXPECT_TRUE(decode(whole + "and more")) << bits;
        for (std::size_t missing = 1; missing <= file.data.size(); ++missing)
            EXPECT_FALSE(decode(whole.substr(0, whole.size() - missing))) << bits << " bits";
    }
}

TEST(BmpRows, AreTheSameInPiecesOfAnySize)
{
    const BmpFile::Indexes rows = pattern(8, 13, 5);
    const std::string bytes = BmpFile::indexed(8, {kBlack}, rows).bytes();
    for (std::size_t piece = 1; piece <= 60; ++piece)
        EXPECT_EQ(decode(bytes, piece)->rows(), rows) << piece;
}
