// A click on a button leaves an edit, and the host answers to that with a box: the mouse is released there.

#include "simple_controls_support.h"

using namespace kite::testing;

namespace {

constexpr int kButton = 2, kCheck = 3, kRadio = 5;

void build()
{
    guiEdit(1, 0, 0, 60, 0, 0);
    guiButton(kButton, 1, 0, 60, "Button", 0);
    guiCheck(kCheck, 2, 0, 60, "Check");
    guiRadio(4, 3, 0, 60, "Set");
    guiRadio(kRadio, 4, 0, 60, "Not set");
}

// Without the highlight, which goes with the keyboard.
screen::Picture lookOf(int id)
{
    const Rect outer = rectOf(controlOf(id));
    return screen::grab({outer.x + 1, outer.y + 1, outer.width - 2, outer.height - 2});
}

void releaseInBox(Shown box)
{
    Robot::instance().release();
    box.key(XK_Return);
}

}  // namespace

GUI_TEST(LostRelease, LeavesNoButtonDrawnAsPressed)
{
    recorder.onEvent(GUI_EVENT_LEFT, 1, [] { guiErrorBox("This is no date"); });
    runDialog(build, [&](Shown dialog) {
        for (const int id : {kButton, kCheck, kRadio}) {
            SCOPED_TRACE(id);
            guiSetFocus(1);
            settle();
            const screen::Picture before = lookOf(id);
            app.whenShown("v_errorbox", releaseInBox);
            robot.moveTo(controlOf(id));
            robot.press();
            EXPECT_TRUE(pumpUntil([&] { return recorder.count(GUI_EVENT_LEFT) > 0; }));
            EXPECT_TRUE(wm::waitForFocus(dialog.widget()));
            EXPECT_TRUE(pumpUntil([&] { return lookOf(id) == before; }));
            recorder.clear();
        }
        EXPECT_FALSE(isToggled(kCheck));
        EXPECT_FALSE(isToggled(kRadio));
    });
}

// The next click counts as ever.
GUI_TEST(LostRelease, LeavesTheButtonUsable)
{
    recorder.onEvent(GUI_EVENT_LEFT, 1, [] { guiErrorBox("This is no date"); });
    runDialog(build, [&](Shown dialog) {
        app.whenShown("v_errorbox", releaseInBox);
        robot.moveTo(controlOf(kButton));
        robot.press();
        EXPECT_TRUE(pumpUntil([&] { return recorder.count(GUI_EVENT_LEFT) > 0; }));
        EXPECT_TRUE(wm::waitForFocus(dialog.widget()));
        EXPECT_EQ(recorder.count(toDialog(GUI_EVENT_COMMAND, kButton)), 0);
        robot.click(controlOf(kButton));
        EXPECT_TRUE(
            pumpUntil([&] { return recorder.count(toDialog(GUI_EVENT_COMMAND, kButton)) == 1; }));
    });
}
