// A user's X resource file and a host that knows nothing of it.

#include <fstream>

#include "gui_test.h"
#include "host_process.h"

using namespace kite::testing;

GUI_STARTUP_TEST(UserResources, ColourThePartsOfTheFrame)
{
    const HostFiles files;
    const std::string name = files.path("resources");
    std::ofstream{name} << "Frame host*v_statusbar.background: #336699\n"
                           "Frame host*v_menubar.background: #996633\n";
    HostProcess program{files, {}, {{"XENVIRONMENT", name}}};
    ASSERT_TRUE(program.window());
    const Rect frame = wm::clientRect(program.window());
    const auto shows = [&](Point point, const char* colour) {
        return pumpUntil([&] { return screen::colourAt(point) == screen::colourNamed(colour); });
    };
    // Right of the gauge, and in the empty menu bar.
    EXPECT_TRUE(shows({frame.right() - 8, frame.bottom() - 14}, "#336699"));
    EXPECT_TRUE(shows({frame.centre().x, frame.y + 5}, "#996633"));
}

GUI_STARTUP_TEST(UserResources, OfAnotherTitleDoNotCount)
{
    const HostFiles files;
    const std::string name = files.path("resources");
    std::ofstream{name} << "Other host*v_statusbar.background: #336699\n"
                           "*v_menubar.background: #996633\n";
    HostProcess program{files, {}, {{"XENVIRONMENT", name}}};
    ASSERT_TRUE(program.window());
    const Rect frame = wm::clientRect(program.window());
    // When the menu bar has its colour, the status bar, which was there before, has its own.
    ASSERT_TRUE(pumpUntil([&] {
        return screen::colourAt({frame.centre().x, frame.y + 5}) == screen::colourNamed("#996633");
    }));
    EXPECT_NE(screen::colourAt({frame.right() - 8, frame.bottom() - 14}),
              screen::colourNamed("#336699"));
}
