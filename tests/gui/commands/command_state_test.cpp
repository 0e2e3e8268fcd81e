// Commands by id: checked, enabled, asked, with their twins on the toolbar.

#include <Xm/ToggleB.h>

#include "commands_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

// 1 plain, 2 check: in both. 3 plain item, 4 check item; 5 plain button, 6 check button.
void buildStates()
{
    guiMenu("Menu");
    guiMenuItem("Both plain", 'p', GUI_PLAIN, 1);
    guiMenuItem("Both check", 'c', GUI_CHECK, 2);
    guiMenuItem("Plain", 0, GUI_PLAIN, 3);
    guiMenuItem("Check", 0, GUI_CHECK, 4);
    guiMenuEnd();
    addImage("image");
    guiToolbarButton("image", "Both plain", GUI_PLAIN, 1);
    guiToolbarButton("image", "Both check", GUI_CHECK, 2);
    guiToolbarButton("image", "Plain", GUI_PLAIN, 5);
    guiToolbarButton("image", "Check", GUI_CHECK, 6);
}

void withCommands(const std::function<void()>& body)
{
    buildThenRun(buildStates, [&] {
        Recorder::instance().clear();
        body();
    });
}

bool isSet(Widget toggle)
{
    return XmToggleButtonGetState(toggle) != 0;
}

Widget button(std::size_t index)
{
    return toolbarButtons().at(index);
}

}  // namespace

GUI_STARTUP_TEST(CommandState, CheckIsSetWithoutAnEvent)
{
    withCommands([&] {
        for (const int state : {1, 0, -5, 0}) {
            EXPECT_EQ(guiSetCommandCheck(2, state), 0);
            EXPECT_EQ(guiSetCommandCheck(4, state), 0);
            EXPECT_EQ(guiSetCommandCheck(6, state), 0);
            for (Widget const toggle : {entry("Both check"), button(1), entry("Check"), button(3)})
                EXPECT_EQ(isSet(toggle), state != 0);
            for (const int id : {2, 4, 6}) EXPECT_EQ(guiGetCommandCheck(id), state != 0 ? 1 : 0);
        }
        settle();
        EXPECT_THAT(recorder.events(), IsEmpty());
    });
}

GUI_STARTUP_TEST(CommandState, PlainAndUnknownCommandsHaveNoCheck)
{
    withCommands([] {
        for (const int id : {1, 3, 5, 99, -1, 0}) {
            EXPECT_EQ(guiSetCommandCheck(id, 1), 0);
            EXPECT_EQ(guiGetCommandCheck(id), 0);
            EXPECT_EQ(guiEnableCommand(99, 0), 0);
        }
    });
}

GUI_STARTUP_TEST(CommandState, MenuItemsAreAskedFirst)
{
    withCommands([] {
        guiSetCommandCheck(2, 1);
        XmToggleButtonSetState(button(1), False, False);
        EXPECT_EQ(guiGetCommandCheck(2), 1);
        XtDestroyWidget(entry("Both check"));
        EXPECT_EQ(guiGetCommandCheck(2), 0);
        XmToggleButtonSetState(button(1), True, False);
        EXPECT_EQ(guiGetCommandCheck(2), 1);
    });
}

GUI_STARTUP_TEST(CommandState, BothAreGreyedAndChoosableAgain)
{
    withCommands([] {
        for (const int enabled : {0, 1, 0, 7}) {
            for (const int id : {1, 2, 3, 5}) EXPECT_EQ(guiEnableCommand(id, enabled), 0);
            for (Widget const widget : {entry("Both plain"), button(0), entry("Both check"),
                                        button(1), entry("Plain"), button(2)})
                EXPECT_EQ(XtIsSensitive(widget) != 0, enabled != 0);
            EXPECT_TRUE(XtIsSensitive(button(3)));
            EXPECT_TRUE(XtIsSensitive(entry("Check")));
        }
    });
}

GUI_STARTUP_TEST(CommandState, TwinsFollowTheUser)
{
    withCommands([&] {
        bool wasSetBefore = false;
        recorder.onEvent(GUI_EVENT_COMMAND, 2,
                         [&] { wasSetBefore = isSet(button(1)) == isSet(entry("Both check")); });
        choose("Menu", "Both check");
        EXPECT_TRUE(isSet(button(1)));
        EXPECT_TRUE(std::exchange(wasSetBefore, false));
        robot.click(button(1));
        EXPECT_FALSE(isSet(entry("Both check")));
        EXPECT_TRUE(std::exchange(wasSetBefore, false));
        robot.click(button(1));
        EXPECT_TRUE(isSet(entry("Both check")));
        robot.keyHandled(XK_c, Control);
        EXPECT_FALSE(isSet(button(1)));
        EXPECT_THAT(recorder.events(), ElementsAre(toWindow(GUI_EVENT_COMMAND, 2, 1),
                                                   toWindow(GUI_EVENT_COMMAND, 2, 0),
                                                   toWindow(GUI_EVENT_COMMAND, 2, 1),
                                                   toWindow(GUI_EVENT_COMMAND, 2, 0)));
    });
}

GUI_STARTUP_TEST(CommandState, ButtonsRaiseTheirCommands)
{
    withCommands([&] {
        robot.click(button(0));
        robot.click(button(2));
        robot.click(button(3));
        robot.click(button(3));
        EXPECT_THAT(recorder.events(), ElementsAre(toWindow(GUI_EVENT_COMMAND, 1, 0),
                                                   toWindow(GUI_EVENT_COMMAND, 5, 0),
                                                   toWindow(GUI_EVENT_COMMAND, 6, 1),
                                                   toWindow(GUI_EVENT_COMMAND, 6, 0)));
    });
}

GUI_STARTUP_TEST(CommandState, GreyedButtonsRaiseNothing)
{
    withCommands([&] {
        guiEnableCommand(1, 0);
        guiEnableCommand(6, 0);
        robot.click(button(0));
        robot.click(button(3));
        EXPECT_THAT(recorder.events(), IsEmpty());
        EXPECT_EQ(guiGetCommandCheck(6), 0);
        guiEnableCommand(6, 1);
        robot.click(button(3));
        EXPECT_THAT(recorder.events(), ElementsAre(toWindow(GUI_EVENT_COMMAND, 6, 1)));
    });
}

// The Output area, whose function keys are commands, keeps the keyboard.
GUI_STARTUP_TEST(CommandState, ButtonsLeaveTheKeyboardWhereItIs)
{
    withCommands([&] {
        app.click("v_text");
        robot.click(button(0));
        robot.click(button(1));
        recorder.clear();
        app.key(XK_F3);
        EXPECT_THAT(recorder.events(), ElementsAre(toWindow(GUI_EVENT_COMMAND, -3)));
    });
}

// A menu that has outlived a restart raises its commands, and is beyond the reach of all calls by id.
GUI_STARTUP_TEST(CommandState, CommandsOfTheTimeBeforeARestart)
{
    withCommands([&] {
        guiRestart();
        EXPECT_EQ(guiGetCommandCheck(2), -1);
        addImage("image");
        EXPECT_EQ(guiToolbarButton("image", nullptr, GUI_PLAIN, 2), 1);
        EXPECT_EQ(guiToolbarButton("image", nullptr, GUI_CHECK, 4), 2);
        robot.keyHandled(XK_p, Control);  // the next event closes the phase
        EXPECT_EQ(recorder.count(toWindow(GUI_EVENT_COMMAND, 1)), 1);
        EXPECT_EQ(guiSetCommandCheck(2, 1), 0);
        EXPECT_FALSE(isSet(entry("Both check")));
        EXPECT_EQ(guiGetCommandCheck(2), 0);
        guiEnableCommand(3, 0);
        EXPECT_TRUE(XtIsSensitive(entry("Plain")));
        // Its twin is a plain button now, which has no state to set.
        choose("Menu", "Both check");
        EXPECT_EQ(recorder.count(toWindow(GUI_EVENT_COMMAND, 2, 1)), 1);
    });
}
