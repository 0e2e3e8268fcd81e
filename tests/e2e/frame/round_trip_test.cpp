// The frame's place from one process to the next, as the user left it.

#include "decoration.h"
#include "gui_test.h"
#include "host_process.h"

using namespace kite::testing;

namespace {

constexpr char kSaved[] = "mwndx = 300\nmwndy = 200\nmwndw = 500\nmwndh = 400\n";

// At the speed of the window manager, which lets the frame follow the pointer.
bool dragTo(Window window, Point corner)
{
    const std::optional<Point> title = wm::titleBar(window);
    if (!title) return false;
    const Rect before = wm::frameRect(window);
    Robot& robot = Robot::instance();
    robot.moveTo(*title);
    robot.press();
    int step = 0;
    const bool follows = pumpUntil([&] {
        robot.moveTo(*title + Point{10 + ++step % 10, 10});
        return wm::frameRect(window) != before;
    });
    robot.moveTo(*title + Point{corner.x - before.x, corner.y - before.y});
    const bool arrives = follows && pumpUntil([&] {
                             const Rect frame = wm::frameRect(window);
                             return Point{frame.x, frame.y} == corner;
                         });
    robot.release();
    return arrives;
}

// The corner of the decoration, with the size inside.
Rect placeOf(Window window)
{
    const Rect outside = wm::frameRect(window);
    const Rect inside = wm::clientRect(window);
    return {outside.x, outside.y, inside.width, inside.height};
}

Rect savedPlace(const HostFiles& files)
{
    const auto value = [&](const char* key) { return files.savedInt(key).value_or(-1000); };
    return {value("mwndx"), value("mwndy"), value("mwndw"), value("mwndh")};
}

bool closeByMouse(HostProcess& program)
{
    wm::closeByDecoration(program.window());
    return program.wait();
}

}  // namespace

GUI_STARTUP_TEST(RoundTrip, FrameComesBackWhereTheUserLeftIt)
{
    const HostFiles files;
    Rect left;
    {
        HostProcess program{files};
        ASSERT_TRUE(dragTo(program.window(), {210, 140}));
        left = placeOf(program.window());
        ASSERT_TRUE(closeByMouse(program));
        EXPECT_EQ(program.exitStatus(), 0);
        EXPECT_EQ(program.output(), "");
    }
    EXPECT_EQ(savedPlace(files), left);
    for (int run = 2; run <= 4; ++run) {
        HostProcess program{files};
        EXPECT_EQ(placeOf(program.window()), left) << "run " << run;
        ASSERT_TRUE(closeByMouse(program));
        EXPECT_EQ(savedPlace(files), left) << "run " << run;
    }
}

GUI_STARTUP_TEST(RoundTrip, FirstPlaceIsTheMiddle)
{
    const HostFiles files;
    HostProcess program{files};
    EXPECT_EQ(placeOf(program.window()), (Rect{(1280 - 450) / 2, (1024 - 300) / 2, 450, 300}));
}

GUI_STARTUP_TEST(RoundTrip, IconLeavesTheSavedPlace)
{
    const HostFiles files;
    files.setProfile(kSaved);
    {
        HostProcess program{files};
        ASSERT_TRUE(dragTo(program.window(), {210, 140}));
        const Window window = program.window();
        wm::iconifyByDecoration(window);
        ASSERT_TRUE(pumpUntil([&] { return wm::stateOf(window) == wm::State::Iconic; }));
        ASSERT_TRUE(program.closeAndWait());
    }
    EXPECT_EQ(savedPlace(files), (Rect{300, 200, 500, 400}));
    HostProcess program{files};
    EXPECT_EQ(placeOf(program.window()), (Rect{300, 200, 500, 400}));
}

GUI_STARTUP_TEST(RoundTrip, ForbiddenLeavesTheSavedPlace)
{
    const HostFiles files;
    files.setProfile("mwndx = 300\nmwndy = 200\nmwndw = 500\nmwndh = 400\nmwndp = 0\n");
    {
        HostProcess program{files};
        ASSERT_TRUE(dragTo(program.window(), {210, 140}));
        ASSERT_TRUE(closeByMouse(program));
    }
    EXPECT_EQ(savedPlace(files), (Rect{300, 200, 500, 400}));
}

GUI_STARTUP_TEST(RoundTrip, PlaceOfALargerScreenGivesTheMiddle)
{
    const HostFiles files;
    files.setProfile("mwndx = 1500\nmwndy = 200\nmwndw = 500\nmwndh = 400\n");
    HostProcess program{files};
    EXPECT_EQ(placeOf(program.window()), (Rect{(1280 - 450) / 2, (1024 - 300) / 2, 450, 300}));
}

GUI_STARTUP_TEST(RoundTrip, KilledHostSavesNothing)
{
    const HostFiles files;
    files.setProfile(kSaved);
    HostProcess program{files};
    ASSERT_TRUE(dragTo(program.window(), {210, 140}));
    program.send(9);
    ASSERT_TRUE(program.wait());
    EXPECT_EQ(savedPlace(files), (Rect{300, 200, 500, 400}));
}
