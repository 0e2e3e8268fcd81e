// Hosts that have no handler at all.

#include "dialogs_support.h"

using namespace kite::testing;
using ::testing::IsEmpty;

namespace {

int runWithoutHandler(const std::function<void(Shown)>& act)
{
    buildDialog();
    guiButton(GUI_CANCEL_BUTTON, 1, 0, 60, "Cancel", 0);
    Script::instance().whenShown("v_dlgbbr", act);
    return guiRunDialog(nullptr);
}

}  // namespace

// A request to close has no other addressee than the window itself.
GUI_STARTUP_TEST(NoHandler, CloseRequestClosesTheDialogAndNotTheFrame)
{
    app.hostCallback = nullptr;
    app.windowHandler = nullptr;
    app.run([&] {
        Widget const main = guiGetTopWnd();
        EXPECT_EQ(runWithoutHandler([](Shown dialog) { wm::close(dialog.widget()); }), 0);
        EXPECT_EQ(guiGetTopWnd(), main);
        EXPECT_TRUE(isShown(main));
    });
}

GUI_STARTUP_TEST(NoHandler, CancelButtonClosesTheDialog)
{
    app.hostCallback = nullptr;
    app.windowHandler = nullptr;
    app.run([&] {
        EXPECT_EQ(runWithoutHandler([](Shown dialog) { dialog.key(XK_Escape); }), 0);
        EXPECT_TRUE(guiGetTopWnd());
    });
}

GUI_STARTUP_TEST(NoHandler, OtherEventsAreLost)
{
    app.hostCallback = nullptr;
    app.windowHandler = nullptr;
    app.run([&] {
        recorder.clear();
        EXPECT_EQ(runWithoutHandler([&](Shown dialog) {
                      dialog.click("OK");
                      raiseEvent(GUI_EVENT_COMMAND, 5);
                      EXPECT_TRUE(isShown(dialog.widget()));
                      guiClose(9);
                  }),
                  9);
        EXPECT_THAT(recorder.events(), IsEmpty());
    });
}

// Its events are not the frame's.
GUI_STARTUP_TEST(NoHandler, FrameHasOneAndTheDialogHasNone)
{
    app.hostCallback = nullptr;
    app.run([&] {
        recorder.clear();
        EXPECT_EQ(runWithoutHandler([](Shown dialog) {
                      dialog.click("OK");
                      guiClose(9);
                  }),
                  9);
        EXPECT_THAT(recorder.events(), IsEmpty());
    });
}

GUI_STARTUP_TEST(NoHandler, StartedDialogRunsAfterTheNextEvent)
{
    app.hostCallback = nullptr;
    app.windowHandler = nullptr;
    app.run([&] {
        bool wasShown = false;
        buildDialog();
        EXPECT_EQ(guiStartDialog(), 0);
        app.whenShown("v_dlgbbr", [&](Shown) {
            wasShown = true;
            guiClose(1);
        });
        raiseEvent(GUI_EVENT_COMMAND, 5);
        EXPECT_TRUE(wasShown);
        EXPECT_TRUE(guiGetTopWnd());
    });
}
