// tour_test.cpp: the tour, used from outside like any program.

#include "tour_program.h"

using namespace kite::testing;
using ::testing::HasSubstr;
using ::testing::StartsWith;

GUI_STARTUP_TEST(Tour, WritesSavesLogsAndLeaves)
{
    TourProgram tour;
    const Window frame = tour.window();
    ASSERT_TRUE(frame) << tour.program().output();
    // Motif takes two keys of the same millisecond for one.
    robot.key(XK_l, Control);
    ASSERT_TRUE(tour.waitUntilLogged("\nLine 5 of plain text\n"));
    robot.key(XK_h, Control);
    ASSERT_TRUE(tour.waitUntilLogged("<h1>A heading</h1>"));
    robot.key(XK_s, Control);
    agree(frame);
    ASSERT_TRUE(wm::waitForFocus(frame));
    const std::string saved = tour.contents("tour-output.txt");
    EXPECT_THAT(saved, StartsWith("Welcome to the tour of kitegui.\n"));
    EXPECT_THAT(saved, HasSubstr("Line 1 of plain text\nLine 2 of plain text\n"));
    EXPECT_THAT(saved, HasSubstr("Text with markup: 2 < 3 & 4 > 3.\n"));

    robot.key(XK_q, Control);
    agree(frame);
    ASSERT_TRUE(tour.program().wait());
    EXPECT_EQ(tour.program().exitStatus(), 0) << tour.program().output();
    const std::string log = tour.contents("log");
    EXPECT_THAT(log, StartsWith(">>>LogStarted: "));
    EXPECT_THAT(log, HasSubstr("Welcome to the tour of <b>kitegui</b>.<br>"));
    EXPECT_THAT(log, HasSubstr(">>>LogStopped: "));
}

// Each is opened by its accelerator, and closed by the user's key or by the window manager.
GUI_STARTUP_TEST(Tour, ShowsItsDialogs)
{
    TourProgram tour;
    const Window frame = tour.window();
    ASSERT_TRUE(frame) << tour.program().output();
    constexpr std::pair<KeySym, const char*> kDialogs[] = {{XK_g, "Registration"},
                                                           {XK_v, "Pictures"},
                                                           {XK_b, "Keyboard"},
                                                           {XK_d, "A customer"},
                                                           {XK_u, "Help at hand"}};
    bool isClosedByKey = false;
    for (const auto& [key, title] : kDialogs) {
        SCOPED_TRACE(title);
        robot.key(key, Control);
        const Window dialog = wm::waitForWindow(title);
        ASSERT_TRUE(dialog && wm::waitForFocus(dialog)) << tour.program().output();
        isClosedByKey = !isClosedByKey;
        if (isClosedByKey)
            robot.key(XK_Escape);
        else
            wm::close(dialog);
        ASSERT_TRUE(wm::waitForFocus(frame)) << tour.program().output();
    }
    robot.key(XK_q, Control);
    agree(frame);
    ASSERT_TRUE(tour.program().wait());
    EXPECT_EQ(tour.program().exitStatus(), 0) << tour.program().output();
}

// An inner dialog closes before the outer one does.
GUI_STARTUP_TEST(Tour, NestsItsDialogs)
{
    TourProgram tour;
    const Window frame = tour.window();
    ASSERT_TRUE(frame) << tour.program().output();
    robot.key(XK_d, Control);
    const Window outer = wm::waitForWindow("A customer");
    ASSERT_TRUE(outer && wm::waitForFocus(outer));
    robot.key(XK_Return);
    const Window inner = wm::waitForWindow("Change the town");
    ASSERT_TRUE(inner && wm::waitForFocus(inner));
    wm::requestClose(outer);
    wm::requestClose(frame);
    robot.key(XK_Return);
    ASSERT_TRUE(wm::waitForFocus(outer));
    robot.key(XK_Escape);
    ASSERT_TRUE(wm::waitForFocus(frame)) << tour.program().output();
    EXPECT_TRUE(tour.program().isRunning());
}
