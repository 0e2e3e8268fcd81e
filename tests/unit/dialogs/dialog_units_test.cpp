#include "dialogs/dialog_units.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <string>

using kite::DialogUnits;

TEST(DialogUnits, AlphabetHasAllLettersOnceInEitherCase)
{
    EXPECT_EQ(std::string{kite::kAlphabet}.size(), 52U);
    for (char letter = 'a'; letter <= 'z'; ++letter) {
        EXPECT_TRUE(std::strchr(kite::kAlphabet, letter)) << letter;
        EXPECT_TRUE(std::strchr(kite::kAlphabet, letter - 'a' + 'A')) << letter;
    }
}

TEST(DialogUnits, AreFractionsOfALetterAndALine)
{
    struct {
        int alphabetWidth, lineHeight;
        double across, down;
    } const rows[] = {
        {0, 8, 0.125, 1.0},  // the pixel that rounds up
        {26, 16, 0.25, 2.0},     {52, 1, 0.375, 0.125},    {390, 18, 2.0, 2.25},
        {520, 21, 2.625, 2.625}, {403, 17, 2.0625, 2.125},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.alphabetWidth);
        const DialogUnits units{{row.alphabetWidth, row.lineHeight}};
        EXPECT_DOUBLE_EQ(units.horizontal(), row.across);
        EXPECT_DOUBLE_EQ(units.vertical(), row.down);
    }
    // Not a whole number of pixels to a letter.
    EXPECT_DOUBLE_EQ(DialogUnits({401, 17}).horizontal(), ((401 / 26.0 + 1.0) / 2.0) / 4.0);
}

TEST(DialogUnits, CutFractionsOfPixelsTowardsZero)
{
    const DialogUnits units{{403, 17}};  // 2.0625 and 2.125
    struct {
        double units;
        int across, down;
    } const rows[] = {{0, 0, 0},      {1, 2, 2},    {7, 14, 14},     {8, 16, 17},
                      {15, 30, 31},   {16, 33, 34}, {100, 206, 212}, {-1, -2, -2},
                      {-8, -16, -17}, {1.5, 3, 3},  {-0.25, 0, 0},   {-15, -30, -31}};
    for (const auto& row : rows) {
        EXPECT_EQ(units.pixelsAcross(row.units), row.across) << row.units;
        EXPECT_EQ(units.pixelsDown(row.units), row.down) << row.units;
    }
}

TEST(DialogUnits, HoldNumbersThatNoScreenHas)
{
    const DialogUnits units{{403, 17}};
    for (const double most : {1e9, static_cast<double>(INT_MAX), 1e300}) {
        EXPECT_EQ(units.pixelsAcross(most), INT_MAX / 4);
        EXPECT_EQ(units.pixelsDown(-most), INT_MIN / 4);
    }
}

TEST(DialogUnits, OfNoFontAreNothing)
{
    EXPECT_EQ(DialogUnits{}.pixelsAcross(100), 0);
    EXPECT_EQ(DialogUnits{}.pixelsDown(100), 0);
}
