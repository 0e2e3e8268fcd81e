// What a user's X resource file says of the frame, by the application title and the widgets' names.

#include <cstdlib>
#include <fstream>

#include "environment.h"
#include "gui_test.h"

using namespace kite::testing;

namespace {

// The file that the toolkit reads when the display has no resources of its own.
void writeUsersResources(const std::string& lines)
{
    std::ofstream{environment("HOME") + "/.Xdefaults"} << lines;
}

}  // namespace

GUI_STARTUP_TEST(XResources, AddressEveryWidgetOfTheFrame)
{
    writeUsersResources("Kite.v_mainwnd.mainWindowMarginWidth: 5\n"
                        "Kite.v_mainwnd.v_menubar.marginWidth: 6\n"
                        "Kite.v_mainwnd.v_toolbar.marginWidth: 7\n"
                        "Kite.v_mainwnd.v_scroll.spacing: 8\n"
                        "Kite.v_mainwnd.v_scroll.v_text.marginWidth: 9\n"
                        "Kite.v_mainwnd.v_statusbar.marginWidth: 10\n"
                        "Kite.v_mainwnd.v_statusbar.v_sline.marginWidth: 11\n"
                        "Kite.v_mainwnd.v_statusbar.v_gauge.highlightThickness: 1\n");
    app.init();
    EXPECT_EQ(resource<Dimension>(findWidget("v_mainwnd"), XmNmainWindowMarginWidth), 5);
    EXPECT_EQ(resource<Dimension>(findWidget("v_menubar"), XmNmarginWidth), 6);
    EXPECT_EQ(resource<Dimension>(findWidget("v_toolbar"), XmNmarginWidth), 7);
    EXPECT_EQ(resource<Dimension>(findWidget("v_scroll"), XmNspacing), 8);
    EXPECT_EQ(resource<Dimension>(findWidget("v_text"), XmNmarginWidth), 9);
    EXPECT_EQ(resource<Dimension>(findWidget("v_statusbar"), XmNmarginWidth), 10);
    EXPECT_EQ(resource<Dimension>(findWidget("v_sline"), XmNmarginWidth), 11);
    EXPECT_EQ(resource<Dimension>(findWidget("v_gauge"), XmNhighlightThickness), 1);
}

GUI_STARTUP_TEST(XResources, ColourShowsOnTheScreen)
{
    writeUsersResources("Kite*v_statusbar.background: #336699\n");
    app.run([&] {
        Widget const bar = findWidget("v_statusbar");
        ASSERT_TRUE(screen::waitUntilPainted(bar));
        const Rect rect = rectOf(bar);
        EXPECT_EQ(screen::colourAt({rect.right() - 6, rect.centre().y}),
                  screen::colourNamed("#336699"));
    });
}

GUI_STARTUP_TEST(XResources, AreKeyedByTheApplicationTitle)
{
    writeUsersResources("Kite*v_sline.marginWidth: 11\nMine*v_sline.marginWidth: 13\n");
    guiSetAppInfo("Mine", "other");
    app.init();
    EXPECT_EQ(resource<Dimension>(findWidget("v_sline"), XmNmarginWidth), 13);
}

// Where the user says how large, nobody adds to it.
GUI_STARTUP_TEST(XResources, GeometryIsTheUsers)
{
    writeUsersResources("Kite.geometry: 640x480+50+60\n");
    app.run([&] {
        const Rect inside = wm::clientRect(app.shell());
        EXPECT_EQ(inside.width, 640);
        EXPECT_EQ(inside.height, 480);
        const Rect outside = wm::frameRect(app.shell());
        EXPECT_EQ(outside.x, 50);
        EXPECT_EQ(outside.y, 60);
    });
}
