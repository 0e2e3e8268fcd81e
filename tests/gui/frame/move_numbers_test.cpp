// guiMoveWin to the pixel: without a window manager.

#include <climits>

#include "gui_test.h"

using namespace kite::testing;

namespace {

constexpr Rect kBegin{100, 80, 500, 400};

struct Row {
    int x, y, w, h;
    Rect result;
};

::testing::AssertionResult comesTo(const Rect& wanted)
{
    Widget const frame = toolkit::root();
    if (pumpUntil([&] { return rectOf(frame) == wanted; })) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "wanted " << wanted << ", is at " << rectOf(frame);
}

}  // namespace

GUI_TEST(MoveNumbers, EveryMixOfNegativeAndGivenValues)
{
    for (int mix = 0; mix < 16; ++mix) {
        guiMoveWin(kBegin.x, kBegin.y, kBegin.width, kBegin.height);
        ASSERT_TRUE(comesTo(kBegin));
        settle();
        const auto given = [&](int bit, int value) { return mix & (1 << bit) ? -1 - bit : value; };
        const auto wanted = [&](int bit, int value, int kept) {
            return mix & (1 << bit) ? kept : value;
        };
        EXPECT_EQ(guiMoveWin(given(0, 31), given(1, 32), given(2, 333), given(3, 234)), 0);
        const Rect result{wanted(0, 31, kBegin.x), wanted(1, 32, kBegin.y),
                          wanted(2, 333, kBegin.width), wanted(3, 234, kBegin.height)};
        EXPECT_TRUE(comesTo(result)) << "mix " << mix;
    }
}

GUI_TEST(MoveNumbers, Limits)
{
    const Row rows[] = {
        {0, 0, 300, 200, {0, 0, 300, 200}},
        {1279, 1023, 300, 200, {1279, 1023, 300, 200}},
        {5000, 4000, 300, 200, {5000, 4000, 300, 200}},
        {32767, 32767, 300, 200, {32767, 32767, 300, 200}},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(guiMoveWin(row.x, row.y, row.w, row.h), 0);
        EXPECT_TRUE(comesTo(row.result));
    }
}

// They must not come back as negative or small ones.
GUI_TEST(MoveNumbers, PlacesBeyondWhatTheServerKnowsAreItsLast)
{
    for (const int large : {32768, 40000, 65536, INT_MAX}) {
        guiMoveWin(10, 10, 300, 200);
        ASSERT_TRUE(comesTo({10, 10, 300, 200}));
        guiMoveWin(large, large, 300, 200);
        EXPECT_TRUE(comesTo({32767, 32767, 300, 200})) << large;
    }
}

GUI_TEST(MoveNumbers, SizesBeyondWhatTheServerKnowsAreItsLargest)
{
    guiMoveWin(0, 0, INT_MAX, 200);
    EXPECT_TRUE(comesTo({0, 0, 32767, 200}));
    guiMoveWin(0, 0, 300, 65536);
    EXPECT_TRUE(comesTo({0, 0, 300, 32767}));
}

GUI_TEST(MoveNumbers, LeastIntegersKeepAll)
{
    guiMoveWin(kBegin.x, kBegin.y, kBegin.width, kBegin.height);
    ASSERT_TRUE(comesTo(kBegin));
    settle();
    EXPECT_EQ(guiMoveWin(INT_MIN, INT_MIN, INT_MIN, INT_MIN), 0);
    settle();
    EXPECT_TRUE(comesTo(kBegin));
}
