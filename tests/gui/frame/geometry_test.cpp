// Which saved places the frame takes. Without a window manager, so that every pixel counts.

#include <climits>

#include "gui_test.h"

using namespace kite::testing;

namespace {

constexpr int kScreenWidth = 1280;
constexpr int kScreenHeight = 1024;
constexpr Rect kCentred{(kScreenWidth - 450) / 2, (kScreenHeight - 300) / 2, 450, 300};

void save(const Rect& rect)
{
    Profile& profile = HostDouble::instance().profile();
    profile.setInt("mwndx", rect.x, "kite");
    profile.setInt("mwndy", rect.y, "kite");
    profile.setInt("mwndw", rect.width, "kite");
    profile.setInt("mwndh", rect.height, "kite");
    profile.setInt("mwndp", 0, "kite");
}

Rect placeOfFrame()
{
    Rect place{-1, -1, 0, 0};
    App& app = App::instance();
    app.run([&] { place = rectOf(app.shell()); });
    return place;
}

void expectKept(std::initializer_list<Rect> places)
{
    for (const Rect& saved : places) {
        save(saved);
        EXPECT_EQ(placeOfFrame(), saved);
    }
}

void expectRejected(std::initializer_list<Rect> places)
{
    for (const Rect& saved : places) {
        save(saved);
        EXPECT_EQ(placeOfFrame(), kCentred) << "saved: " << saved;
    }
}

}  // namespace

GUI_STARTUP_TEST(SavedPlace, IsCentredWhenThereIsNone)
{
    EXPECT_EQ(placeOfFrame(), kCentred);
}

GUI_STARTUP_TEST(SavedPlace, IsTakenWhenItFits)
{
    expectKept({{100, 50, 640, 480}, {1, 1, 301, 201}});
}

GUI_STARTUP_TEST(SavedPlace, MayTouchEveryEdgeOfTheScreen)
{
    expectKept({{0, 0, 300, 200},
                {0, 0, kScreenWidth, kScreenHeight},
                {kScreenWidth - 300, 0, 300, 200},
                {0, kScreenHeight - 200, 300, 200},
                {kScreenWidth - 300, kScreenHeight - 200, 300, 200}});
}

GUI_STARTUP_TEST(SavedPlace, BeyondTheScreenIsRejectedAsAWhole)
{
    expectRejected({{-1, 10, 500, 400},
                    {10, -1, 500, 400},
                    {kScreenWidth - 299, 10, 300, 400},
                    {10, kScreenHeight - 199, 500, 200},
                    {0, 0, kScreenWidth + 1, 400},
                    {0, 0, 500, kScreenHeight + 1}});
}

GUI_STARTUP_TEST(SavedPlace, TooSmallIsRejectedAsAWhole)
{
    expectRejected({{10, 10, 299, 500}, {10, 10, 500, 199}, {10, 10, 0, 0}, {10, 10, -300, 200}});
}

GUI_STARTUP_TEST(SavedPlace, OfExtremeNumbersIsRejected)
{
    expectRejected({{INT_MAX, 10, 500, 400},
                    {10, INT_MAX, 500, 400},
                    {10, 10, INT_MAX, 400},
                    {10, 10, 500, INT_MAX},
                    {INT_MIN, INT_MIN, INT_MIN, INT_MIN}});
}

GUI_STARTUP_TEST(SavedPlace, IncompleteIsRejected)
{
    for (const char* missing : {"mwndx", "mwndy", "mwndw", "mwndh"}) {
        save({100, 50, 640, 480});
        host.profile().remove(missing);
        EXPECT_EQ(placeOfFrame(), kCentred) << missing;
    }
}

GUI_STARTUP_TEST(SavedPlace, IsWhereTheFrameWasClosed)
{
    save({100, 50, 640, 480});
    host.profile().setInt("mwndp", 1, "kite");
    EXPECT_EQ(placeOfFrame(), (Rect{100, 50, 640, 480}));
    EXPECT_EQ(placeOfFrame(), (Rect{100, 50, 640, 480}));
}
