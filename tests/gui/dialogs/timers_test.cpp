// The end of a dialog is the end of the periodic timer and of a hover that has begun.

#include "dialogs_support.h"

using namespace kite::testing;
using ::testing::IsEmpty;

namespace {

constexpr milliseconds kQuiet{350};

bool nothingComes(int event)
{
    Recorder& recorder = Recorder::instance();
    const int before = recorder.count(event);
    return holdsFor([&] { return recorder.count(event) == before; }, kQuiet);
}

}  // namespace

GUI_TEST(DialogTimer, StopsWithEveryDialog)
{
    // Stops with the dialog that started it.
    buildDialog();
    runWhileShown([&](Shown) {
        guiTimer(100);
        EXPECT_TRUE(app.waitForEvent(toDialog(GUI_EVENT_TIMER)));
    });
    EXPECT_TRUE(nothingComes(GUI_EVENT_TIMER));
    recorder.clear();
    guiTimer(100);
    EXPECT_TRUE(app.waitForEvent(toWindow(GUI_EVENT_TIMER)));

    // Stops also when it was started before.
    guiTimer(100);
    EXPECT_TRUE(app.waitForEvent(toWindow(GUI_EVENT_TIMER)));
    buildDialog();
    EXPECT_TRUE(app.waitForEvent(toWindow(GUI_EVENT_TIMER)));
    runWhileShown([&](Shown) { EXPECT_TRUE(app.waitForEvent(toDialog(GUI_EVENT_TIMER))); });
    EXPECT_TRUE(nothingComes(GUI_EVENT_TIMER));

    // Stops with an inner dialog.
    buildDialog("Outer");
    runWhileShown([&](Shown) {
        guiTimer(100);
        EXPECT_TRUE(app.waitForEvent(toDialog(GUI_EVENT_TIMER)));
        buildDialog("Inner");
        runWhileShown([](Shown) {});
        EXPECT_TRUE(nothingComes(GUI_EVENT_TIMER));
    });
}

GUI_TEST(DialogTimer, StopsHoweverTheDialogEnds)
{
    // Stops with a dialog that is never shown.
    recorder.onEvent(GUI_EVENT_INIT, [] {
        guiTimer(100);
        guiClose(0);
    });
    buildDialog();
    guiRunDialog(Recorder::dialogHandler());
    EXPECT_TRUE(nothingComes(GUI_EVENT_TIMER));

    recorder.forgetReactions();
    // In the handler of the timer's own event, too, where the timer would go on by itself.
    recorder.onEvent(GUI_EVENT_TIMER, [] { guiClose(6); });
    recorder.onEvent(GUI_EVENT_INIT, [] { guiTimer(100); });
    buildDialog();
    EXPECT_EQ(guiRunDialog(Recorder::dialogHandler()), 6);
    EXPECT_TRUE(nothingComes(GUI_EVENT_TIMER));
    EXPECT_TRUE(guiGetTopWnd());

    recorder.forgetReactions();
    // Stops when the dialog is destroyed.
    buildDialog();
    app.whenShown("v_dlgbbr", [](Shown dialog) {
        guiTimer(100);
        XtDestroyWidget(dialog.shell());
    });
    guiRunDialog(Recorder::dialogHandler());
    EXPECT_TRUE(nothingComes(GUI_EVENT_TIMER));
}

// An abandoned dialog has not run.
GUI_TEST(DialogTimer, GoesOnWhenADialogIsAbandoned)
{
    guiTimer(100);
    buildDialog();
    guiClose(0);
    recorder.clear();
    EXPECT_TRUE(app.waitForEvent(toWindow(GUI_EVENT_TIMER)));
    guiTimer(0);
}

GUI_STARTUP_TEST(DialogHover, StopsWithTheDialog)
{
    host.profile().setString("mouse_hover", "0.2");
    app.run([&] {
        ASSERT_EQ(guiDialog("Hover"), 0);
        guiButton(1, 0, 0, 100, "Here", 0);
        runWhileShown([&](Shown) {
            robot.moveTo(control(1));
            EXPECT_TRUE(app.waitForEvent(toDialog(GUI_EVENT_HOVER, 1)));
            const Rect button = rectOf(control(1));
            robot.moveTo(Point{button.x - 3, button.y - 3});
            robot.moveTo(control(1));
            settle();
            recorder.clear();
        });
        EXPECT_TRUE(nothingComes(GUI_EVENT_HOVER));
        EXPECT_THAT(recorder.events(GUI_EVENT_HOVER), IsEmpty());
    });
}
