// Menus by mouse: every way to an item, and the ways out.

#include <Xm/ToggleBG.h>

#include "commands_support.h"
#include "connection.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

void buildMouseMenus()
{
    guiMenu("&File");
    guiMenuItem("&Open", 0, GUI_PLAIN, 10);
    guiMenu("&Recent");
    guiMenuItem("&First", 0, GUI_PLAIN, 11);
    guiMenuEnd();
    guiMenuItem("&Quit", 0, GUI_PLAIN, 0);
    guiMenuEnd();
    guiMenu("&View");
    guiMenuItem("&Wrap", 0, GUI_CHECK, 12);
    guiMenuEnd();
}

void inMouseMenus(const std::function<void()>& body)
{
    buildThenRun(buildMouseMenus, [&] {
        Recorder::instance().clear();
        body();
    });
}

std::vector<Event> mouseCommands()
{
    return Recorder::instance().events(GUI_EVENT_COMMAND);
}

}  // namespace

GUI_STARTUP_TEST(MenuMouse, ClickAndClick)
{
    inMouseMenus([] {
        choose("File", "Open");
        EXPECT_THAT(mouseCommands(), ElementsAre(toWindow(GUI_EVENT_COMMAND, 10, 0, 0)));
        EXPECT_TRUE(isClosed("Open"));
        choose("File", "Quit");
        EXPECT_EQ(mouseCommands().back(), toWindow(GUI_EVENT_COMMAND, 0, 0, 0));
    });
}

GUI_STARTUP_TEST(MenuMouse, PressDragRelease)
{
    inMouseMenus([&] {
        robot.moveTo(entry("File"));
        robot.press();
        ASSERT_TRUE(isOpen("Open"));
        robot.moveTo(rectOf(entry("Open")).centre());
        robot.release();
        EXPECT_TRUE(app.waitForEvent(toWindow(GUI_EVENT_COMMAND, 10)));
        EXPECT_TRUE(isClosed("Open"));
        EXPECT_EQ(mouseCommands().size(), 1U);
    });
}

GUI_STARTUP_TEST(MenuMouse, SubmenuByDragging)
{
    inMouseMenus([&] {
        robot.moveTo(entry("File"));
        robot.press();
        ASSERT_TRUE(isOpen("Recent"));
        robot.moveTo(rectOf(entry("Recent")).centre());
        ASSERT_TRUE(isOpen("First"));
        robot.moveTo(rectOf(entry("First")).centre());
        robot.release();
        EXPECT_TRUE(app.waitForEvent(toWindow(GUI_EVENT_COMMAND, 11)));
    });
}

GUI_STARTUP_TEST(MenuMouse, SubmenuByClicks)
{
    inMouseMenus([&] {
        openMenu("File");
        ASSERT_TRUE(isOpen("Recent"));
        robot.click(entry("Recent"));
        ASSERT_TRUE(isOpen("First"));
        robot.click(entry("First"));
        EXPECT_THAT(mouseCommands(), ElementsAre(toWindow(GUI_EVENT_COMMAND, 11)));
    });
}

GUI_STARTUP_TEST(MenuMouse, ReleaseElsewhereChoosesNothing)
{
    inMouseMenus([&] {
        robot.moveTo(entry("File"));
        robot.press();
        ASSERT_TRUE(isOpen("Open"));
        robot.moveTo(rectOf(app.find("v_text")).centre());
        robot.release();
        EXPECT_TRUE(isClosed("Open"));
        EXPECT_THAT(mouseCommands(), IsEmpty());
    });
}

GUI_STARTUP_TEST(MenuMouse, ChecksChangeWithEachChoice)
{
    inMouseMenus([] {
        choose("View", "Wrap");
        EXPECT_TRUE(XmToggleButtonGadgetGetState(entry("Wrap")));
        choose("View", "Wrap");
        EXPECT_THAT(mouseCommands(), ElementsAre(toWindow(GUI_EVENT_COMMAND, 12, 1, 0),
                                                 toWindow(GUI_EVENT_COMMAND, 12, 0, 0)));
    });
}

GUI_STARTUP_TEST(MenuMouse, GreyedItemsAreNotChosen)
{
    inMouseMenus([&] {
        guiEnableCommand(10, 0);
        openMenu("File");
        ASSERT_TRUE(isOpen("Open"));
        robot.moveTo(rectOf(entry("Open")).centre());
        robot.click();
        settle();
        EXPECT_THAT(mouseCommands(), IsEmpty());
        robot.key(XK_Escape);
        EXPECT_TRUE(isClosed("Open"));
        guiEnableCommand(10, 1);
        choose("File", "Open");
        EXPECT_THAT(mouseCommands(), ElementsAre(toWindow(GUI_EVENT_COMMAND, 10)));
    });
}

// Those inside others do not.
GUI_STARTUP_TEST(MenuMouse, MenusOfTheMenuBarClearTheStatusLine)
{
    inMouseMenus([&] {
        guiSetStatusLine("Done.");
        robot.moveTo(entry("File"));
        robot.press();
        ASSERT_TRUE(isOpen("Recent"));
        EXPECT_TRUE(pumpUntil([&] { return labelOf(app.find("v_sline")) == " "; }));
        guiSetStatusLine("Half way.");
        robot.moveTo(rectOf(entry("Recent")).centre());
        ASSERT_TRUE(isOpen("First"));
        settle();
        EXPECT_EQ(labelOf(app.find("v_sline")), "Half way.");
        robot.moveTo(rectOf(entry("First")).centre());
        robot.release();
        EXPECT_TRUE(app.waitForEvent(toWindow(GUI_EVENT_COMMAND, 11)));
    });
}

GUI_STARTUP_TEST(MenuMouse, CommandsGoToTheHostCallbackWithoutAWindowHandler)
{
    app.windowHandler = nullptr;
    inMouseMenus([] {
        choose("View", "Wrap");
        EXPECT_THAT(mouseCommands(), ElementsAre(toHost(GUI_EVENT_COMMAND, 12, 1, 0)));
    });
}

// The close command of a host without any handler.
GUI_STARTUP_TEST(MenuMouse, CloseCommandClosesTheFrameOfAHostWithoutHandlers)
{
    app.hostCallback = nullptr;
    app.windowHandler = nullptr;
    app.init();
    buildMouseMenus();
    app.run([] {
        openMenu("File");
        ASSERT_TRUE(isOpen("Quit"));
        Robot::instance().moveTo(rectOf(entry("Quit")).centre());
        Robot::instance().click();
        EXPECT_TRUE(pumpUntil([] { return !guiGetTopWnd(); }));
    });
}
