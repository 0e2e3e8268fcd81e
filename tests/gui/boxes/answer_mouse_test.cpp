// Answers by mouse: each button of each box.

#include "box_kinds.h"

using namespace kite::testing;

namespace {

void clickEachButton(const std::string& call)
{
    const BoxKind& kind = boxKind(call);
    for (const Choice& choice : kind.choices) {
        SCOPED_TRACE(choice.label);
        Script::instance().whenShown(kind.widget, [&](Shown box) { box.click(choice.label); });
        EXPECT_EQ(kind.ask("Which one?"), choice.answer);
        EXPECT_EQ(guiGetTopWnd(), findWidget("v_mainwnd"));
    }
}

}  // namespace

GUI_TEST(BoxClick, InfoBox)
{
    clickEachButton("guiInfoBox");
}

GUI_TEST(BoxClick, ErrorBox)
{
    clickEachButton("guiErrorBox");
}

GUI_TEST(BoxClick, OkCancelBox)
{
    clickEachButton("guiOkCancelBox");
}

GUI_TEST(BoxClick, YesNoBox)
{
    clickEachButton("guiYesNoBox");
}

GUI_TEST(BoxClick, YesNoCancelBox)
{
    clickEachButton("guiYesNoCancelBox");
}

GUI_TEST(BoxClick, GetTextBox)
{
    clickEachButton("guiGetTextBox");
}

// A user who changes his mind draws the pointer off the pressed button.
GUI_TEST(BoxClick, ReleaseBesideTheButtonIsNoAnswer)
{
    app.whenShown("v_askbox", [&](Shown box) {
        const Rect no = rectOf(partOf(box.widget(), XmDIALOG_CANCEL_BUTTON));
        robot.drag(no.centre(), {no.centre().x, no.y - 20});
        EXPECT_TRUE(isShown(box.widget()));
        box.click("Yes");
    });
    EXPECT_EQ(guiYesNoBox("Really?"), 1);
}

GUI_TEST(BoxClick, ClickBesideTheButtonsIsNoAnswer)
{
    app.whenShown("v_askbox", [&](Shown box) {
        robot.click(messageLabelOf(box.widget()));
        robot.click(box.widget(), LeftButton, Point{2, 2});
        EXPECT_TRUE(isShown(box.widget()));
        box.click("Yes");
    });
    EXPECT_EQ(guiYesNoBox("Really?"), 1);
}
