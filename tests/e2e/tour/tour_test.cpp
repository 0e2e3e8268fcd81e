// tour_test.cpp: the tour, used from outside like any program.

#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>

#include "gui_test.h"
#include "temporary_directory.h"

using namespace kite::testing;
using ::testing::HasSubstr;
using ::testing::StartsWith;

namespace {

class Tour {
public:
    Tour()
    {
        std::filesystem::current_path(directory_.path());  // the tour saves there
        std::ofstream{path("profile")} << "[tour]\nlogfm = 1\nlogfn = " << path("log") << "\n";
        program_.emplace(std::vector<std::string>{TOUR_PROGRAM},
                         Process::Environment{{"KITE_PROFILE", path("profile")}});
    }

    // Once it has the keyboard and takes commands; 0 when it does not come.
    Window window() const
    {
        const Window window = wm::waitForWindow("kitegui tour");
        if (!window || !waitUntilLogged("Welcome")) return 0;
        return hasMovingGauge(window) && wm::waitForFocus(window) ? window : 0;
    }

    std::string path(const std::string& name) const { return directory_.path() / name; }

    std::string contents(const std::string& name) const
    {
        std::ostringstream all;
        all << std::ifstream{path(name)}.rdbuf();
        return all.str();
    }

    bool waitUntilLogged(const std::string& text) const
    {
        return pumpUntil([&] { return contents("log").find(text) != std::string::npos; });
    }

    Process& program() { return *program_; }

private:
    // Its timer feeds it, from the main loop.
    static bool hasMovingGauge(Window window)
    {
        const auto look = [=] { return screen::grab(wm::clientRect(window)); };
        const screen::Picture before = look();
        return pumpUntil([&] { return look() != before; });
    }

    TemporaryDirectory directory_{"tour"};
    std::optional<Process> program_;
};

// Agrees to the box that comes up over the frame.
void agree(Window frame)
{
    ASSERT_TRUE(pumpUntil([=] { return !wm::hasFocus(frame); }));
    Robot::instance().key(XK_Return);
}

}  // namespace

GUI_STARTUP_TEST(Tour, WritesSavesLogsAndLeaves)
{
    Tour tour;
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
    Tour tour;
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
    Tour tour;
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
