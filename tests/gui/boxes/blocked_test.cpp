// A box keeps mouse and keyboard away from all other windows of the application.

#include "box_kinds.h"

#include <Xm/Text.h>

using namespace kite::testing;

namespace {

// mwm keeps the click to itself; another manager leaves it to the toolkit.
void clickInVain(Widget widget, std::optional<Point> offset = {})
{
    Robot& robot = Robot::instance();
    if (wm::kind() != wm::Kind::Mwm) return robot.click(widget, LeftButton, offset);
    robot.moveTo(widget, offset);
    robot.click();
    settle();
}

}  // namespace

// Which window has the keyboard then is up to the manager: the answer comes by mouse.
GUI_TEST(BoxBlocks, ClickIntoTheOutputArea)
{
    Widget const output = app.find("v_text");
    XmTextSetString(output, const_cast<char*>("A line of text"));
    XmTextSetInsertionPosition(output, XmTextGetLastPosition(output));
    const XmTextPosition end = XmTextGetInsertionPosition(output);
    recorder.clear();
    for (const BoxKind& kind : allBoxes()) {
        app.whenShown(kind.widget, [&](Shown box) {
            clickInVain(output, Point{10, 10});
            EXPECT_EQ(XmTextGetInsertionPosition(output), end);
            EXPECT_TRUE(isShown(box.widget()));
            EXPECT_EQ(guiGetTopWnd(), box.widget());
            box.click(kind.choices.front().label);
        });
        EXPECT_EQ(kind.ask("Not now"), kind.choices.front().answer) << kind.call;
    }
    EXPECT_EQ(recorder.count(GUI_EVENT_COMMAND), 0);
}

GUI_TEST(BoxBlocks, KeysForTheOutputArea)
{
    Widget const output = app.find("v_text");
    recorder.clear();
    for (const BoxKind& kind : allBoxes()) {
        Script::instance().whenShown(kind.widget, [&](Shown box) {
            clickInVain(output, Point{10, 10});
            robot.keyHandled(XK_q);
            robot.keyHandled(XK_F1);
            EXPECT_TRUE(isShown(box.widget()));
            box.closeByWindowManager();
        });
        EXPECT_EQ(kind.ask("Not now"), kind.whenClosed) << kind.call;
        EXPECT_EQ(textOf(output), "") << kind.call;
    }
    EXPECT_EQ(recorder.count(GUI_EVENT_COMMAND), 0);
}

GUI_TEST(BoxBlocks, OuterBox)
{
    int outerAnswers = 0;
    app.whenShown("v_infobox", [&](Shown outer) {
        Widget const ok = buttonsOf(outer.widget()).front();
        XtAddCallback(
            ok, XmNactivateCallback,
            [](Widget, XtPointer count, XtPointer) { ++*static_cast<int*>(count); }, &outerAnswers);
        app.whenShown("v_askbox", [&](Shown inner) {
            wm::moveTo(inner.widget(), {20, 20});
            clickInVain(ok);
            EXPECT_EQ(outerAnswers, 0);
            EXPECT_TRUE(isShown(inner.widget()));
            inner.click("Yes");
        });
        EXPECT_EQ(guiYesNoBox("Inner?"), 1);
        EXPECT_TRUE(isShown(outer.widget()));
        // The manager keeps clicks away until it has seen the inner box go.
        wm::awaitManager();
        outer.click("OK");
    });
    guiInfoBox("Outer");
    EXPECT_EQ(outerAnswers, 1);
}
