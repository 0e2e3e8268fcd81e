// pixel_rows_test.cpp: which pixel stands for which colour, with displays of our own making.

#include <gmock/gmock.h>

#include "images/pixel_rows.h"

using namespace kite::images;
using ::testing::ElementsAre;

namespace {

constexpr std::uint32_t kUndrawn = 77;
constexpr std::uint32_t kBackground = 99;
constexpr bmp::Bgr kGrey{191, 191, 191};

// Shows every colour exactly, as few displays do, except those that it refuses.
class ExactDisplay {
public:
    DirectPixels::Allocate allocator()
    {
        return [this](Rgb wanted) -> std::optional<AllocatedColour> {
            asked.push_back(wanted);
            if (wanted == refused) return std::nullopt;
            return AllocatedColour{static_cast<std::uint32_t>(1000 + wanted.red), wide(wanted.red),
                                   wide(wanted.green), wide(wanted.blue)};
        };
    }

    std::vector<Rgb> asked;
    Rgb refused{1, 1, 1};
};

std::optional<std::uint32_t> menuBar()
{
    return kBackground;
}

std::optional<std::uint32_t> noMenuBar()
{
    return std::nullopt;
}

std::vector<std::uint32_t> converted(DirectPixels& pixels, const std::vector<bmp::Bgr>& row)
{
    std::vector<std::uint32_t> result(row.size());
    pixels.convert(row, result);
    return result;
}

}  // namespace

TEST(DirectPixels, AreAllocatedOnceForEachColour)
{
    ExactDisplay display;
    DirectPixels pixels{display.allocator(), noMenuBar, kUndrawn};
    const std::vector<bmp::Bgr> row{{3, 2, 1}, {3, 2, 1}, {9, 8, 7}, {3, 2, 1}};
    EXPECT_THAT(converted(pixels, row), ElementsAre(1001, 1001, 1007, 1001));
    EXPECT_THAT(converted(pixels, row), ElementsAre(1001, 1001, 1007, 1001));
    EXPECT_THAT(display.asked, ElementsAre(Rgb{1, 2, 3}, Rgb{7, 8, 9}));
}

TEST(DirectPixels, StayUndrawnWhenTheDisplayRefuses)
{
    ExactDisplay display;
    DirectPixels pixels{display.allocator(), menuBar, kUndrawn};
    EXPECT_THAT(converted(pixels, {{1, 1, 1}, {2, 2, 2}, {1, 1, 1}}),
                ElementsAre(kUndrawn, 1002, kUndrawn));
    EXPECT_EQ(display.asked.size(), 2U);
}

TEST(DirectPixels, ShowTheMenuBarThroughTheGrey)
{
    ExactDisplay display;
    DirectPixels pixels{display.allocator(), menuBar, kUndrawn};
    EXPECT_THAT(converted(pixels, {kGrey, {191, 191, 190}, {192, 192, 192}, kGrey}),
                ElementsAre(kBackground, 1190, 1192, kBackground));
}

TEST(DirectPixels, AreGreyWithoutAMenuBar)
{
    ExactDisplay display;
    DirectPixels pixels{display.allocator(), noMenuBar, kUndrawn};
    EXPECT_THAT(converted(pixels, {kGrey}), ElementsAre(1191));
}

// Exactly 0xBF00 in all three, whatever was asked for.
TEST(DirectPixels, AreTransparentByWhatIsReported)
{
    struct {
        AllocatedColour answer;
        std::uint32_t expected;
    } const rows[] = {{{5, 0xBF00, 0xBF00, 0xBF00}, kBackground},
                      {{5, 0xBFBF, 0xBFBF, 0xBFBF}, 5},
                      {{5, 0xBF00, 0xBF00, 0xBF01}, 5},
                      {{5, 0xBF00, 0xBEFF, 0xBF00}, 5},
                      {{5, 0, 0xBF00, 0xBF00}, 5}};
    for (const auto& row : rows) {
        DirectPixels pixels{[&](Rgb) { return row.answer; }, menuBar, kUndrawn};
        EXPECT_THAT(converted(pixels, {{10, 20, 30}}), ElementsAre(row.expected));
    }
}

TEST(DirectPixels, AskNobodyWhenTheyAreComputed)
{
    ExactDisplay display;
    DirectPixels pixels{display.allocator(), menuBar, kUndrawn};
    const TrueColour computed{{0xFF0000, 0x00FF00, 0x0000FF, 8, 24}};
    pixels.useComputed(&computed);
    EXPECT_THAT(converted(pixels, {{3, 2, 1}, kGrey}), ElementsAre(0x010203, 0xBFBFBF));
    EXPECT_TRUE(display.asked.empty());
}

// A display that can have the grey is asked, computed or not.
TEST(DirectPixels, AreTransparentOnADisplayWithTheExactGrey)
{
    ExactDisplay display;
    DirectPixels pixels{display.allocator(), menuBar, kUndrawn};
    const TrueColour fine{{0xFFFF0000, 0xFFFF0000, 0x0000FFFF, 16, 24}};
    pixels.useComputed(&fine);
    EXPECT_THAT(converted(pixels, {kGrey, {2, 2, 2}}), ElementsAre(kBackground, 1002));
}

// No display here: every colour is refused.
TEST(IndexedPixels, StayUndrawnWhenTheDisplayRefuses)
{
    ImagePalette palette;
    IndexedPixels pixels{palette, kUndrawn};
    const std::vector<bmp::Index> row{0, 255, bmp::kUndrawn};
    std::vector<std::uint32_t> result(row.size());
    pixels.convert(row, result);
    EXPECT_THAT(result, ElementsAre(kUndrawn, kUndrawn, kUndrawn));
}
