// true_colour_test.cpp: computed colours, as servers are known to answer. The tests with a display compare
// all of them with a real one.

#include <gtest/gtest.h>

#include "images/true_colour.h"

using kite::images::AllocatedColour;
using kite::images::TrueColour;

namespace {

const TrueColour k24{{0xFF0000, 0x00FF00, 0x0000FF, 8, 24}};
const TrueColour k16{{0xF800, 0x07E0, 0x001F, 8, 16}};

}  // namespace

TEST(TrueColour, PutsTheComponentsIntoTheirBits)
{
    EXPECT_EQ(k24.allocate({0x12, 0x34, 0x56}),
              (AllocatedColour{0x123456, 0x1212, 0x3434, 0x5656}));
    EXPECT_EQ(k24.allocate({0, 0, 0}), (AllocatedColour{}));
    EXPECT_EQ(k24.allocate({255, 255, 255}), (AllocatedColour{0xFFFFFF, 0xFFFF, 0xFFFF, 0xFFFF}));
    const TrueColour swapped{{0x0000FF, 0x00FF00, 0xFF0000, 8, 24}};
    EXPECT_EQ(swapped.allocate({0x12, 0x34, 0x56}).pixel, 0x563412U);
    EXPECT_EQ(swapped.pixel(0x12, 0x34, 0x56), 0x563412U);
}

TEST(TrueColour, TakesTheNearestOfFewerValues)
{
    EXPECT_EQ(k16.allocate({255, 255, 255}).pixel, 0xFFFFU);
    EXPECT_EQ(k16.allocate({0, 0, 0}).pixel, 0U);
    // 31 values of red: the second stands for 8, the third for 16. 12 is as near to one as to the other.
    EXPECT_EQ(k16.allocate({8, 0, 0}).pixel >> 11, 1U);
    EXPECT_EQ(k16.allocate({11, 0, 0}).pixel >> 11, 1U);
    EXPECT_EQ(k16.allocate({12, 0, 0}).pixel >> 11, 1U);
    EXPECT_EQ(k16.allocate({13, 0, 0}).pixel >> 11, 2U);
    EXPECT_EQ(k16.allocate({8, 0, 0}).red, 0x0808);
}

TEST(TrueColour, FillsAPixelOfAWholeWord)
{
    const TrueColour whole{{0xFF0000, 0x00FF00, 0x0000FF, 8, 32}};
    EXPECT_EQ(whole.allocate({1, 2, 3}).pixel, 0xFF010203U);
}

// Displays of eight bits spread 191 to 0xBFBF. Only one of sixteen bits has it as it was asked for.
TEST(TrueColour, KnowsWhatItReports)
{
    EXPECT_EQ(k24.allocate({191, 191, 191}).red, 0xBFBF);
    EXPECT_TRUE(k24.reports(0xBFBF, 0xBFBF, 0xBFBF));
    EXPECT_FALSE(k24.reports(0xBF00, 0xBF00, 0xBF00));
    EXPECT_FALSE(k16.reports(0xBF00, 0xBF00, 0xBF00));
    const TrueColour fine{{0xFFFF0000, 0xFFFF0000, 0x0000FFFF, 16, 24}};
    EXPECT_TRUE(fine.reports(0xBF00, 0xBF00, 0xBF00));
}
