// keyboard_test.cpp: what the robot types is what arrives.

#include "gui_test.h"

#include <X11/keysym.h>
#include <Xm/Text.h>

#include "probe_window.h"

using namespace kite::testing;
using ::testing::ElementsAre;

GUI_TEST(RobotKeyboard, TypesEveryPrintableCharacter)
{
    ProbeWindow window;
    XmProcessTraversal(window.text, XmTRAVERSE_CURRENT);
    std::string all;
    for (char c = ' '; c <= '~'; ++c) all += c;
    robot.typeHandled(all);
    EXPECT_EQ(textOf(window.text), all);
}

GUI_TEST(RobotKeyboard, TypesLinesAndCorrections)
{
    ProbeWindow window;
    XmProcessTraversal(window.text, XmTRAVERSE_CURRENT);
    robot.typeHandled("One\nTwoo\b, Three");
    EXPECT_EQ(textOf(window.text), "One\nTwo, Three");
}

GUI_TEST(RobotKeyboard, TypesCharactersThatTheKeyboardLacks)
{
    ProbeWindow window;
    XmProcessTraversal(window.text, XmTRAVERSE_CURRENT);
    robot.typeHandled("Größe ÄÉñ");
    EXPECT_EQ(textOf(window.text), "Gr\xF6\xDF"
                                   "e \xC4\xC9\xF1");
}

GUI_TEST(RobotKeyboard, ClicksStillWorkAfterTheKeyboardHasChanged)
{
    ProbeWindow window;
    XmProcessTraversal(window.text, XmTRAVERSE_CURRENT);
    robot.typeHandled("ö");
    robot.click(window.button);
    EXPECT_EQ(window.presses, 1);
}

GUI_TEST(RobotKeyboard, HoldsModifiersWhileAKeyIsPressed)
{
    ProbeWindow window;
    window.giveFocusToCanvas();
    robot.keyHandled(XK_a, Control);
    robot.keyHandled(XK_b, Alt);
    robot.keyHandled(XK_F5, Control | Shift);
    robot.keyHandled(XK_c);
    EXPECT_THAT(window.keys, ElementsAre(XK_a, XK_b, XK_F5, XK_c));
    EXPECT_THAT(window.keyStates, ElementsAre(ControlMask, Mod1Mask, ControlMask | ShiftMask, 0U));
}

GUI_TEST(RobotKeyboard, PressesAndReleasesSeparately)
{
    ProbeWindow window;
    window.giveFocusToCanvas();
    robot.keyDown(XK_Control_L);
    robot.keyHandled(XK_x);
    robot.keyUp(XK_Control_L);
    robot.keyHandled(XK_y);
    EXPECT_THAT(window.keyStates, ElementsAre(ControlMask, 0U));
}

GUI_TEST(RobotKeyboard, FunctionKeysReachTheFrame)
{
    app.click("v_text");
    app.key(XK_F3);
    EXPECT_TRUE(app.waitForEvent(toWindow(GUI_EVENT_COMMAND, -3)));
}
