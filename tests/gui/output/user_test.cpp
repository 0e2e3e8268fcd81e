// The Output area in the hands of the user.

#include "output_support.h"

using namespace kite::testing;

namespace {

// The middle of a character on the screen.
Point at(XmTextPosition position)
{
    Widget const text = outputText();
    Position x = 0, y = 0, nextX = 0;
    EXPECT_TRUE(XmTextPosToXY(text, position, &x, &y));
    XmTextPosToXY(text, position + 1, &nextX, &y);
    const Rect place = rectOf(text);
    return {place.x + (x + nextX) / 2, place.y + y - 3};
}

}  // namespace

GUI_TEST(OutputUser, SelectsByDraggingWhatIsReadAndReplaced)
{
    guiWriteText("first line\nsecond line");
    robot.drag(at(11), at(17));
    ASSERT_TRUE(pumpUntil([] { return outputSelection() != kNothing; }));
    settle();
    const Selected selected = outputSelection();
    EXPECT_NEAR(static_cast<double>(selected.left), 11, 1);
    EXPECT_NEAR(static_cast<double>(selected.right), 17, 1);
    EXPECT_EQ(guiGetCurLine(GUI_SELECTION_START), 2);
    EXPECT_EQ(guiGetCurPos(GUI_SELECTION_START), selected.left - 11);
    EXPECT_EQ(guiGetCurPos(GUI_SELECTION_END), selected.right - 11);
    EXPECT_EQ(guiSaveOutput("saved"), 0);
    EXPECT_EQ(contentsOf("saved"),
              output().substr(static_cast<std::size_t>(selected.left), contentsOf("saved").size()));
    guiClearOutput();
    EXPECT_EQ(guiOutputLineCount(), 2);
    EXPECT_EQ(line(0), "first line");
    EXPECT_EQ(line(1).size(), 11U - static_cast<std::size_t>(selected.right - selected.left));
}

GUI_TEST(OutputUser, TypesWhatIsRead)
{
    guiWriteLine("written");
    app.type("typed\nmore");
    EXPECT_EQ(guiOutputLineCount(), 3);
    EXPECT_EQ(line(1), "typed");
    EXPECT_EQ(line(2), "more");
    EXPECT_EQ(guiGetCurLine(0), 3);
    EXPECT_EQ(guiGetCurPos(0), 4);
    app.key(XK_Up);
    app.key(XK_Home);
    EXPECT_EQ(guiGetCurLine(0), 2);
    EXPECT_EQ(guiGetCurPos(0), 0);
    app.key(XK_Home, Control);
    EXPECT_EQ(guiGetCurLine(0), 1);
    guiWriteText("!");
    EXPECT_EQ(line(2), "more!");
}

GUI_TEST(OutputUser, SeesTheInsertionCursorOnlyWithTheFocus)
{
    const auto isCursorShown = [] {
        return resource<Boolean>(outputText(), XmNcursorPositionVisible) != False;
    };
    EXPECT_TRUE(isCursorShown());
    guiWriteLine("a");
    EXPECT_TRUE(isCursorShown());
    app.whenShown("v_askbox", [&](Shown box) {
        EXPECT_TRUE(pumpUntil([&] { return !isCursorShown(); }));
        guiWriteLine("b");
        EXPECT_FALSE(isCursorShown());
        box.click("Yes");
    });
    guiYesNoBox("?");
    EXPECT_TRUE(pumpUntil(isCursorShown));
}
