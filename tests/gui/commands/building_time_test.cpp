// When commands can be built, and when they are complete.

#include "commands_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

void buildMenu(const char* title = "Menu", int id = 7)
{
    guiMenu(title);
    guiMenuItem("Item", 0, GUI_CHECK, id);
    guiMenuEnd();
}

// By the first event of a host with an event loop of its own.
void firstEvent()
{
    Robot::instance().keyHandled(XK_F2);
}

std::size_t menuCount()
{
    return findWidgets("v_mbtn").size();
}

int initCount()
{
    return Recorder::instance().count(GUI_EVENT_INIT);
}

// Both ways to be started.
void startBothWays(const std::function<void()>& inInit, const std::function<void()>& check)
{
    App& app = App::instance();
    Recorder& recorder = Recorder::instance();
    for (const bool hasMainLoop : {true, false}) {
        SCOPED_TRACE(hasMainLoop ? "guiStart" : "the first event");
        recorder.clear();
        app.init();
        recorder.onEvent(GUI_EVENT_INIT, 0, inInit);
        if (!hasMainLoop) {
            firstEvent();
            check();
            recorder.forgetReactions();
        }
        app.run([&] {
            if (hasMainLoop) check();
        });
    }
}

}  // namespace

GUI_STARTUP_TEST(BuildingTime, BeforeTheStart)
{
    buildThenRun([] { buildMenu(); },
                 [] {
                     EXPECT_EQ(menuCount(), 1U);
                     EXPECT_EQ(initCount(), 1);
                     EXPECT_TRUE(isShown(entry("Menu")));
                     EXPECT_EQ(guiGetCommandCheck(7), 0);
                 });
}

// What was built before is complete when event 0 comes.
GUI_TEST(BuildingTime, InitFindsWhatWasBuiltBefore)
{
    guiRestart();
    buildMenu();
    recorder.onEvent(GUI_EVENT_INIT, 0, [] {
        EXPECT_EQ(guiSetCommandCheck(7, 1), 0);
        EXPECT_EQ(guiGetCommandCheck(7), 1);
        EXPECT_EQ(guiEnableCommand(7, 0), 0);
        EXPECT_MISUSE(guiMenuItem("late", 0, 0, 8), "MenuItem: cannot be used now", -1);
        EXPECT_MISUSE(guiToolbarButton("late", nullptr, 0, 8), "ToolbarButton: cannot be used now",
                      -1);
    });
    recorder.clear();
    firstEvent();
    EXPECT_FALSE(XtIsSensitive(entry("Item")));
    EXPECT_EQ(guiGetCommandCheck(7), 1);
    EXPECT_EQ(initCount(), 1);
}

GUI_STARTUP_TEST(BuildingTime, WhatInitBuildsStandsOnce)
{
    addImage("image");
    startBothWays(
        [] {
            buildMenu();
            EXPECT_EQ(guiToolbarButton("image", nullptr, GUI_CHECK, 7), 1);
            EXPECT_EQ(guiGetCommandCheck(7), -1);  // still in it
        },
        [] {
            EXPECT_EQ(initCount(), 1);
            EXPECT_EQ(menuCount(), 1U);
            EXPECT_TRUE(isShown(entry("Menu")));
            ASSERT_EQ(toolbarButtons().size(), 1U);
            EXPECT_TRUE(isShown(toolbarButtons().front()));
            EXPECT_EQ(guiGetCommandCheck(7), 0);
            EXPECT_MISUSE(guiMenuSeparator(), "MenuSeparator: cannot be used now", -1);
        });
}

GUI_STARTUP_TEST(BuildingTime, InitAfterItsOwnRestartBuildsOnce)
{
    addImage("image");
    startBothWays(
        [] {
            guiRestart();
            EXPECT_EQ(guiToolbarButton("image", nullptr, GUI_PLAIN, 1), 1);
        },
        [] {
            EXPECT_EQ(initCount(), 1);
            EXPECT_EQ(toolbarButtons().size(), 1U);
        });
}

// guiMenu opens the time for building also when it is refused.
GUI_TEST(BuildingTime, RefusedMenuInInitCallsForNoOther)
{
    guiRestart();
    recorder.onEvent(GUI_EVENT_INIT, 0, [] {
        EXPECT_MISUSE(guiMenu(std::string(64, 'x').c_str()), "Menu: invalid name", -1);
    });
    recorder.clear();
    firstEvent();
    EXPECT_EQ(initCount(), 1);
    EXPECT_EQ(guiGetCommandCheck(7), 0);
}

// A restart that nothing follows takes everything back: event 0 comes once more.
GUI_STARTUP_TEST(BuildingTime, RestartAtTheEndOfInitCallsForAnother)
{
    bool hasRestarted = false;
    startBothWays(
        [&] {
            buildMenu();
            if (!std::exchange(hasRestarted, true)) guiRestart();
        },
        [&] {
            EXPECT_EQ(initCount(), 2);
            EXPECT_EQ(menuCount(), 2U);
            EXPECT_EQ(guiGetCommandCheck(7), 0);
            hasRestarted = false;
        });
}

// A plug-in that event 0 asked for finds the commands complete.
GUI_STARTUP_TEST(BuildingTime, EndsBeforeWhatInitHasDeferred)
{
    static int check = -2;
    recorder.onEvent(GUI_EVENT_INIT, 0, [] {
        buildMenu();
        guiStartPlugin([](GuiHandler) {
            check = guiGetCommandCheck(7);
            return 0;
        });
    });
    app.run([] { EXPECT_EQ(check, 0); });
}

GUI_STARTUP_TEST(BuildingTime, MenuInAHandlerBeginsAnew)
{
    addImage("image");
    buildThenRun(
        [] {
            buildMenu();
            guiToolbarButton("image", nullptr, GUI_PLAIN, 1);
        },
        [&] {
            guiSetFrameTitle("other");
            recorder.onEvent(GUI_EVENT_COMMAND, 7, [] { buildMenu("New", 8); });
            recorder.clear();
            choose("Menu", "Item");
            EXPECT_THAT(recorder.events(),
                        ElementsAre(toWindow(GUI_EVENT_COMMAND, 7, 1), toWindow(GUI_EVENT_INIT)));
            EXPECT_EQ(menuCount(), 2U);
            EXPECT_TRUE(isShown(entry("New")));
            EXPECT_EQ(rectOf(entry("New")).x, rectOf(entry("Menu")).right());
            EXPECT_FALSE(findWidget("v_toolbar"));
            EXPECT_EQ(guiGetCommandCheck(7), 0);
            guiSetCommandCheck(8, 1);
            EXPECT_EQ(guiGetCommandCheck(8), 1);
        });
}

// The menu bar grows for it, and everything below makes room.
GUI_TEST(BuildingTime, FirstMenuInAHandler)
{
    const int before = rectOf(app.find("v_menubar")).height;
    recorder.onEvent(GUI_EVENT_COMMAND, -2, [] { buildMenu(); });
    firstEvent();
    settle();
    const Rect menuBar = rectOf(app.find("v_menubar"));
    EXPECT_GT(menuBar.height, before);
    EXPECT_TRUE(isShown(entry("Menu")));
    EXPECT_EQ(menuBar.width, rectOf(app.find("v_mainwnd")).width);
    EXPECT_EQ(rectOf(app.find("v_scroll")).y, menuBar.bottom());
    EXPECT_EQ(rectOf(app.find("v_scroll")).bottom(), rectOf(app.find("v_statusbar")).y);
    choose("Menu", "Item");
    EXPECT_EQ(recorder.count(toWindow(GUI_EVENT_COMMAND, 7, 1)), 1);
}

// More menus than one row holds.
GUI_TEST(BuildingTime, MenusOfTwoRowsInAHandler)
{
    addImage("image");
    recorder.onEvent(GUI_EVENT_COMMAND, -2, [] {
        buildMenu();
        for (int i = 0; i < 7; ++i) {
            guiMenu("A long title");
            guiMenuEnd();
        }
        guiToolbarButton("image", nullptr, GUI_PLAIN, 1);
    });
    firstEvent();
    settle();
    const Rect menuBar = rectOf(app.find("v_menubar"));
    const Rect frame = rectOf(app.find("v_mainwnd"));
    for (Widget const title : findWidgets("v_mbtn")) {
        EXPECT_LE(rectOf(title).bottom(), menuBar.bottom());
        EXPECT_LE(rectOf(title).right(), frame.right());
    }
    EXPECT_EQ(rectOf(app.find("v_toolbar")).y, menuBar.bottom());
    EXPECT_EQ(rectOf(app.find("v_scroll")).y, rectOf(app.find("v_toolbar")).bottom());
}

// The levels are left as the host leaves them; a restart begins at the menu bar.
GUI_STARTUP_TEST(BuildingTime, UnclosedMenusAreForgotten)
{
    buildThenRun(
        [] {
            guiMenu("One");
            guiMenu("Two");
        },
        [] {
            EXPECT_EQ(menuCount(), 2U);
            EXPECT_EQ(guiMenu("Three"), 1);
            EXPECT_EQ(XtParent(entry("Three")), findWidget("v_menubar"));
        });
}

GUI_STARTUP_TEST(BuildingTime, NextFrameBeginsEmpty)
{
    addImage("image");
    for (int frame = 0; frame < 2; ++frame) {
        app.init();
        EXPECT_EQ(guiMenu("Menu"), 1);
        EXPECT_EQ(guiMenuItem("Item", 'i', GUI_CHECK, 7), 1);
        EXPECT_EQ(guiToolbarButton("image", nullptr, GUI_CHECK, 7), 1);
        EXPECT_EQ(guiToolbarSeparator(), 1);
        app.run([] {});  // the menu is still open
        EXPECT_EQ(guiGetCommandCheck(7), -1);
    }
}

// Also in a session that goes on, of a host with a loop of its own.
GUI_STARTUP_TEST(BuildingTime, NextFrameBeginsEmptyWithoutAMainLoop)
{
    app.init();
    buildMenu();
    firstEvent();
    guiSetCommandCheck(7, 1);
    guiClose(0);
    EXPECT_EQ(guiGetCommandCheck(7), 0);
    guiInit(Recorder::hostCallback());
    toolkit::attach(guiGetTopWnd());
    EXPECT_EQ(guiMenu("Menu"), 1);
    EXPECT_EQ(guiMenuItem("Item", 0, GUI_CHECK, 7), 1);
    app.run([] { EXPECT_EQ(guiGetCommandCheck(7), 0); });
}
