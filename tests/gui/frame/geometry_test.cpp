// Which saved places the frame takes. Without a window manager, so that every pixel counts.

#include <climits>

#include "frame_checks.h"
#include "gui_test.h"

using namespace kite::testing;

namespace {

constexpr int kScreenWidth = 1280;
constexpr int kScreenHeight = 1024;
constexpr Rect kCentred{(kScreenWidth - 450) / 2, (kScreenHeight - 300) / 2, 450, 300};

// For good: the frame does not save another one.
void keep(const Rect& rect)
{
    savePlace(rect);
    HostDouble::instance().profile().setInt("mwndp", 0, "kite");
}

Rect placeOfFrame()
{
    Rect place{-1, -1, 0, 0};
    App& app = App::instance();
    app.run([&] { place = rectOf(app.shell()); });
    return place;
}

void expectKept(const Rect& saved)
{
    keep(saved);
    EXPECT_EQ(placeOfFrame(), saved);
}

// As a whole: nothing of it is used.
void expectRejected(const Rect& saved)
{
    keep(saved);
    EXPECT_EQ(placeOfFrame(), kCentred);
}

void expectRejectedWithout(const char* key)
{
    keep({100, 50, 640, 480});
    HostDouble::instance().profile().remove(key);
    EXPECT_EQ(placeOfFrame(), kCentred);
}

}  // namespace

GUI_STARTUP_TEST(SavedPlace, IsCentredWhenThereIsNone)
{
    EXPECT_EQ(placeOfFrame(), kCentred);
}

GUI_STARTUP_TEST(SavedPlace, IsTakenWhenItFits)
{
    expectKept({100, 50, 640, 480});
}

GUI_STARTUP_TEST(SavedPlace, OfTheLeastSizeIsTaken)
{
    expectKept({1, 1, 300, 200});
}

GUI_STARTUP_TEST(SavedPlace, MayBeTheLeftTopCorner)
{
    expectKept({0, 0, 300, 200});
}

GUI_STARTUP_TEST(SavedPlace, MayBeTheWholeScreen)
{
    expectKept({0, 0, kScreenWidth, kScreenHeight});
}

GUI_STARTUP_TEST(SavedPlace, MayTouchTheRightEdge)
{
    expectKept({kScreenWidth - 300, 0, 300, 200});
}

GUI_STARTUP_TEST(SavedPlace, MayTouchTheBottomEdge)
{
    expectKept({0, kScreenHeight - 200, 300, 200});
}

GUI_STARTUP_TEST(SavedPlace, MayBeTheRightBottomCorner)
{
    expectKept({kScreenWidth - 300, kScreenHeight - 200, 300, 200});
}

GUI_STARTUP_TEST(SavedPlace, BeyondTheLeftEdgeIsRejected)
{
    expectRejected({-1, 10, 500, 400});
}

GUI_STARTUP_TEST(SavedPlace, AboveTheTopEdgeIsRejected)
{
    expectRejected({10, -1, 500, 400});
}

GUI_STARTUP_TEST(SavedPlace, BeyondTheRightEdgeIsRejected)
{
    expectRejected({kScreenWidth - 299, 10, 300, 400});
}

GUI_STARTUP_TEST(SavedPlace, BelowTheBottomEdgeIsRejected)
{
    expectRejected({10, kScreenHeight - 199, 500, 200});
}

GUI_STARTUP_TEST(SavedPlace, WiderThanTheScreenIsRejected)
{
    expectRejected({0, 0, kScreenWidth + 1, 400});
}

GUI_STARTUP_TEST(SavedPlace, HigherThanTheScreenIsRejected)
{
    expectRejected({0, 0, 500, kScreenHeight + 1});
}

GUI_STARTUP_TEST(SavedPlace, TooNarrowIsRejected)
{
    expectRejected({10, 10, 299, 500});
}

GUI_STARTUP_TEST(SavedPlace, TooLowIsRejected)
{
    expectRejected({10, 10, 500, 199});
}

GUI_STARTUP_TEST(SavedPlace, OfNoSizeIsRejected)
{
    expectRejected({10, 10, 0, 0});
}

GUI_STARTUP_TEST(SavedPlace, OfNegativeSizeIsRejected)
{
    expectRejected({10, 10, -300, 200});
}

GUI_STARTUP_TEST(SavedPlace, OfTheLargestXIsRejected)
{
    expectRejected({INT_MAX, 10, 500, 400});
}

GUI_STARTUP_TEST(SavedPlace, OfTheLargestYIsRejected)
{
    expectRejected({10, INT_MAX, 500, 400});
}

GUI_STARTUP_TEST(SavedPlace, OfTheLargestWidthIsRejected)
{
    expectRejected({10, 10, INT_MAX, 400});
}

GUI_STARTUP_TEST(SavedPlace, OfTheLargestHeightIsRejected)
{
    expectRejected({10, 10, 500, INT_MAX});
}

GUI_STARTUP_TEST(SavedPlace, OfLeastNumbersIsRejected)
{
    expectRejected({INT_MIN, INT_MIN, INT_MIN, INT_MIN});
}

GUI_STARTUP_TEST(SavedPlace, WithoutXIsRejected)
{
    expectRejectedWithout("mwndx");
}

GUI_STARTUP_TEST(SavedPlace, WithoutYIsRejected)
{
    expectRejectedWithout("mwndy");
}

GUI_STARTUP_TEST(SavedPlace, WithoutWidthIsRejected)
{
    expectRejectedWithout("mwndw");
}

GUI_STARTUP_TEST(SavedPlace, WithoutHeightIsRejected)
{
    expectRejectedWithout("mwndh");
}

GUI_STARTUP_TEST(SavedPlace, IsWhereTheFrameWasClosed)
{
    keep({100, 50, 640, 480});
    host.profile().setInt("mwndp", 1, "kite");
    EXPECT_EQ(placeOfFrame(), (Rect{100, 50, 640, 480}));
    EXPECT_EQ(placeOfFrame(), (Rect{100, 50, 640, 480}));
}
