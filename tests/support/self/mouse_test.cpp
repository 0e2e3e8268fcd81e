// mouse_test.cpp: the robot's mouse does what a hand would do.

#include "gui_test.h"

#include "connection.h"
#include "probe_window.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

GUI_TEST(RobotMouse, MovesToPointsOfTheScreenAndOfWidgets)
{
    robot.moveTo(Point{17, 23});
    EXPECT_EQ(pointerPosition(), (Point{17, 23}));

    Widget const text = app.find("v_text");
    robot.moveTo(text, Point{5, 7});
    const Rect rect = rectOf(text);
    EXPECT_EQ(pointerPosition(), (Point{rect.x + 5, rect.y + 7}));
}

GUI_TEST(RobotMouse, ClickPressesAButton)
{
    ProbeWindow window;
    robot.click(window.button);
    EXPECT_EQ(window.presses, 1);
}

GUI_TEST(RobotMouse, TwoClicksAreNotADoubleClick)
{
    ProbeWindow window;
    robot.click(window.list, LeftButton, Point{20, 10});
    robot.click(window.list, LeftButton, Point{20, 10});
    EXPECT_THAT(window.selected, ElementsAre("one", "one"));
    EXPECT_THAT(window.opened, IsEmpty());
}

GUI_TEST(RobotMouse, DoubleClickIsOne)
{
    ProbeWindow window;
    robot.doubleClick(window.list, LeftButton, Point{20, 10});
    EXPECT_THAT(window.opened, ElementsAre("one"));
}

GUI_TEST(RobotMouse, PressesTheButtonThatIsAskedForAtTheSpot)
{
    ProbeWindow window;
    robot.click(window.canvas, RightButton, Point{30, 40});
    ASSERT_GE(window.inputs.size(), 2U);
    const auto press = window.inputs.end() - 2;
    EXPECT_EQ(press->type, ButtonPress);
    EXPECT_EQ(press->detail, RightButton);
    EXPECT_EQ(press->at, (Point{30, 40}));
    EXPECT_EQ(window.inputs.back().type, ButtonRelease);
}

GUI_TEST(RobotMouse, DragMovesWithTheButtonHeld)
{
    ProbeWindow window;
    const Rect canvas = rectOf(window.canvas);
    robot.drag({canvas.x + 10, canvas.y + 10}, {canvas.x + 90, canvas.y + 50});
    int movesWithButton = 0;
    for (const ProbeWindow::Input& input : window.inputs)
        movesWithButton += input.type == MotionNotify && (input.state & Button1Mask);
    EXPECT_GT(movesWithButton, 2);
    EXPECT_EQ(window.inputs.back().type, ButtonRelease);
    EXPECT_EQ(window.inputs.back().at, (Point{90, 50}));
}

GUI_TEST(RobotMouse, TurnsTheWheelBothWays)
{
    ProbeWindow window;
    robot.wheel(window.canvas, 2);
    robot.wheel(window.canvas, -1);
    std::vector<unsigned> turned;
    for (const ProbeWindow::Input& input : window.inputs)
        if (input.type == ButtonPress) turned.push_back(input.detail);
    EXPECT_THAT(turned, ElementsAre(WheelDown, WheelDown, WheelUp));
}

GUI_TEST(RobotMouse, ClicksOnGadgets)
{
    app.whenShown("v_infobox", [](Shown box) { box.click("OK"); });
    guiInfoBox("a box whose buttons have no windows");
}
