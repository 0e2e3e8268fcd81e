// The insertion cursor of multi-line texts and spin boxes: it is shown where the keyboard is.

#include "other_controls_support.h"

using namespace kite::testing;

namespace {

enum Id { kFirst = 1, kSecond, kCheck, kNumber };

bool hasCursor(int id)
{
    return resource<Boolean>(innerOf(id), XmNcursorPositionVisible);
}

void expectCursorOnlyIn(int id)
{
    settle();
    for (const int other : {kFirst, kSecond, kNumber})
        EXPECT_EQ(hasCursor(other), other == id) << other << ", expected in " << id;
}

void build()
{
    guiText(kFirst, 0, 3, 0, 80, 0);
    guiText(kSecond, 3, 3, 0, 80, 1);
    guiCheck(kCheck, 6, 0, 40, "Check");
    guiSpin(kNumber, 7, 0, 40);
}

}  // namespace

GUI_TEST(TextCursor, FollowsTheKeyboard)
{
    ASSERT_EQ(guiDialog(""), 0);
    build();
    expectCursorOnlyIn(0);
    guiClose(0);

    runDialog(build, [this](Shown) {
        ASSERT_TRUE(waitForKeyboard(kFirst));
        expectCursorOnlyIn(kFirst);
        robot.click(innerOf(kSecond));
        expectCursorOnlyIn(kSecond);
        robot.click(controlOf(kCheck));
        expectCursorOnlyIn(0);
        robot.click(innerOf(kNumber));
        expectCursorOnlyIn(kNumber);
        robot.click(innerOf(kFirst));
        expectCursorOnlyIn(kFirst);
    });
}

// A change by the user brings it back.
GUI_TEST(TextCursor, ComesBackWhenTheUserTypes)
{
    runDialog(build, [](Shown dialog) {
        ASSERT_TRUE(waitForKeyboard(kFirst));
        XtVaSetValues(innerOf(kFirst), XmNcursorPositionVisible, False, nullptr);
        dialog.type("a");
        EXPECT_TRUE(hasCursor(kFirst));
        XtVaSetValues(innerOf(kFirst), XmNcursorPositionVisible, False, nullptr);
        guiSetText(kFirst, "by the host");
        EXPECT_FALSE(hasCursor(kFirst));
    });
}
