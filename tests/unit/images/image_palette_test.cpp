// image_palette_test.cpp: the palette without a display. What it allocates is tested with one.

#include <gtest/gtest.h>

#include <kitegui.h>

#include <climits>

TEST(ImagePalette, RefusesEveryColourWithoutADisplay)
{
    ImagePalette palette;
    palette.reset(1);
    palette.set(5, 10, 20, 30);
    EXPECT_EQ(palette.isGood(5), 0);
    EXPECT_EQ(palette.isGood(5), 0);
    EXPECT_EQ(palette.isGood(6), 0);
}

TEST(ImagePalette, HasNoPixelsYet)
{
    const ImagePalette palette;
    for (int index = 0; index < 256; ++index) EXPECT_EQ(palette.get(index), 0U);
}

TEST(ImagePalette, IgnoresIndexesItDoesNotHave)
{
    ImagePalette palette;
    for (const int index : {-1, 256, 257, INT_MIN, INT_MAX}) {
        palette.set(index, 1, 2, 3);
        EXPECT_EQ(palette.isGood(index), 0) << index;
        EXPECT_EQ(palette.get(index), 0U) << index;
    }
}
