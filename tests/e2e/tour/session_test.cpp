// session_test.cpp: two sessions with the tour, and what is left of them.

#include "environment.h"
#include "tour_program.h"

using namespace kite::testing;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::StartsWith;

namespace {

std::string clipboard()
{
    Process client{{"xclip", "-o", "-selection", "clipboard"}};
    EXPECT_TRUE(client.wait());
    return client.output();
}

int timesIn(const std::string& all, const std::string& part)
{
    int count = 0;
    for (auto at = all.find(part); at != std::string::npos; at = all.find(part, at + 1)) ++count;
    return count;
}

// The window that a key opens over the frame has the keyboard, and the frame has it again.
bool waitForWindowOver(Window frame)
{
    return pumpUntil([=] { return !wm::hasFocus(frame); });
}

screen::Picture lookOf(Window frame)
{
    return screen::grab(wm::clientRect(frame));
}

// Returns when the command has shown what it has done. (Motif takes two keys of the same millisecond for one.)
void command(Window frame, KeySym key, unsigned modifiers)
{
    const screen::Picture before = lookOf(frame);
    Robot::instance().key(key, modifiers);
    EXPECT_TRUE(pumpUntil([&] { return lookOf(frame) != before; })) << XKeysymToString(key);
}

// The gauge moves every 200 milliseconds until then.
void stopTimer(Window frame)
{
    Robot::instance().key(XK_t, Control);
    EXPECT_TRUE(pumpUntil([&] {
        const screen::Picture before = lookOf(frame);
        return holdsFor([&] { return lookOf(frame) == before; }, milliseconds{500});
    }));
}

void leave(TourProgram& tour, Window frame)
{
    Robot::instance().key(XK_q, Control);
    agree(frame);
    ASSERT_TRUE(tour.program().wait());
    EXPECT_EQ(tour.program().exitStatus(), 0);
    EXPECT_EQ(tour.program().output(), "");
}

}  // namespace

GUI_STARTUP_TEST(Session, LeavesItsFilesAndComesBack)
{
    // Motif leaks a little with each text that another program reads from its clipboard, in functions without names.
    const Process::Environment withoutLeaks{
        {"ASAN_OPTIONS", environment("ASAN_OPTIONS") + ":detect_leaks=0"}};
    TourProgram tour{withoutLeaks};
    std::ofstream{tour.path("note.txt")} << "A note\nof two lines\n";
    Window frame = tour.window();
    ASSERT_TRUE(frame);

    // A menu, a dialog, a file, the output, a copy, a print.
    stopTimer(frame);
    command(frame, XK_o, Alt);
    robot.key(XK_l);
    ASSERT_TRUE(tour.waitUntilLogged("\nLine 5 of plain text\n"));
    robot.key(XK_j, Control);
    const Window tasks = wm::waitForWindow("Tasks");
    ASSERT_TRUE(tasks && wm::waitForFocus(tasks));
    robot.key(XK_Escape);
    ASSERT_TRUE(wm::waitForFocus(frame));
    robot.key(XK_o, Control | Shift);
    const Window box = wm::waitForWindow("Open a text");
    ASSERT_TRUE(box && wm::waitForFocus(box));
    robot.type("note.txt");
    robot.key(XK_Return);
    ASSERT_TRUE(tour.waitUntilLogged("of two lines\n"));
    ASSERT_TRUE(wm::waitForFocus(frame));
    command(frame, XK_9, Control);  // the last line is selected
    command(frame, XK_c, Control);
    EXPECT_TRUE(pumpUntil([] { return clipboard() == "of two lines"; })) << clipboard();
    command(frame, XK_a, Control | Shift);
    robot.key(XK_p, Control | Shift);
    ASSERT_TRUE(waitForWindowOver(frame) && wm::waitForFocus(frame));
    EXPECT_THAT(tour.contents("tour-printed.txt"), EndsWith("A note\nof two lines\n"));
    robot.key(XK_s, Control);
    agree(frame);
    ASSERT_TRUE(wm::waitForFocus(frame));
    EXPECT_EQ(tour.contents("tour-output.txt"), tour.contents("tour-printed.txt"));
    wm::moveTo(frame, {40, 60});
    const Rect place = wm::frameRect(frame);
    leave(tour, frame);

    const std::string profile = tour.contents("profile");
    EXPECT_THAT(profile, HasSubstr("mwndx = 40"));
    EXPECT_THAT(profile, HasSubstr("mwndy = 60"));
    EXPECT_THAT(profile, HasSubstr("logfm = 2")) << "what the user has written stays";
    EXPECT_THAT(tour.contents("log"), StartsWith(">>>LogStarted: "));
    EXPECT_THAT(tour.contents("log"), HasSubstr(">>>LogStopped: "));

    // Again: it opens where it was, goes on with the log, and asks before it overwrites.
    tour.start(withoutLeaks);
    frame = tour.window();
    ASSERT_TRUE(frame);
    EXPECT_EQ(wm::frameRect(frame), place);
    robot.key(XK_s, Control);
    agree(frame);
    ASSERT_TRUE(pumpUntil([&] { return !wm::hasFocus(frame); }));
    const Window question = wm::waitForWindow("kitegui tour");
    ASSERT_TRUE(question);
    ASSERT_TRUE(pumpUntil([&] {
        robot.key(XK_Return);
        return wm::hasFocus(frame);
    }));
    EXPECT_THAT(tour.contents("tour-output.txt"), StartsWith("Welcome to the tour of kitegui.\n"));
    EXPECT_EQ(timesIn(tour.contents("tour-output.txt"), "A note"), 0);
    leave(tour, frame);
    EXPECT_EQ(timesIn(tour.contents("log"), ">>>LogStarted: "), 2);
    EXPECT_EQ(timesIn(tour.contents("log"), "A note\n"), 1) << "what was logged before is there";
}
