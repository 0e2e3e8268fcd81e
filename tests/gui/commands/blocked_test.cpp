// While a box is open, no command reaches the host: neither by mouse nor by key.

#include "commands_support.h"

using namespace kite::testing;
using ::testing::IsEmpty;

namespace {

void buildCommands()
{
    guiMenu("&Menu");
    guiMenuItem("Item", 'i', GUI_PLAIN, 1);
    guiMenuEnd();
    addImage("image");
    guiToolbarButton("image", "Tip", GUI_CHECK, 2);
}

void tryEverything(Shown box)
{
    Robot& robot = Robot::instance();
    robot.key(XK_i, Control);
    robot.key(XK_m, Alt);
    robot.moveTo(rectOf(toolbarButtons().front()).centre());
    robot.click();
    robot.moveTo(rectOf(entry("Menu")).centre());
    robot.click();
    // The click may have given the frame the keyboard.
    robot.key(XK_i, Control);
    robot.key(XK_m, Alt);
    EXPECT_TRUE(holdsFor([] { return !isShown(entry("Item")); }, milliseconds{150}));
    EXPECT_FALSE(findWidget("v_tooltip"));
    box.click("OK");
}

}  // namespace

GUI_STARTUP_TEST(CommandsBlocked, WhileABoxIsOpen)
{
    buildThenRun(buildCommands, [&] {
        app.whenShown("v_infobox", tryEverything);
        recorder.clear();
        guiInfoBox("Commands must wait.");
        settle();
        EXPECT_THAT(recorder.events(), IsEmpty());
        EXPECT_EQ(guiGetCommandCheck(2), 0);
        robot.click(toolbarButtons().front());
        EXPECT_EQ(recorder.count(toWindow(GUI_EVENT_COMMAND, 2, 1)), 1);
    });
}
