// guiDialog: when a dialog can be begun, and what it says otherwise.

#include "dialogs_support.h"

using namespace kite::testing;

namespace {

const std::string kNotStarted = "Dialog: the system must be started first";
const std::string kRequested = "Dialog: handlers must return after StartDialog";
const std::string kPrepared = "Dialog: you must start the previous dialog first";

}  // namespace

GUI_STARTUP_TEST(OpenDialog, FailsSilentlyWithoutAWindow)
{
    EXPECT_EQ(guiDialog("Too early"), -1);
    EXPECT_EQ(guiStartDialog(), -1);
    EXPECT_EQ(guiRunDialog(nullptr), -1);
}

GUI_STARTUP_TEST(OpenDialog, NeedsAStartedSystem)
{
    app.init();
    EXPECT_MISUSE(guiDialog("Too early"), kNotStarted, -1);
    EXPECT_MISUSE(guiDialog(nullptr), kNotStarted, -1);
    EXPECT_FALSE(board());
    raiseEvent(GUI_EVENT_COMMAND, 1);  // the first event starts it as well
    EXPECT_EQ(guiDialog("Now"), 0);
}

GUI_STARTUP_TEST(OpenDialog, IsPossibleInTheFirstEventOfTheFrame)
{
    int result = -5;
    recorder.onEvent(GUI_EVENT_INIT, [&](const Event& event) {
        if (event.handler != Handler::Window) return;
        buildDialog();
        result = runWhileShown([](Shown) {}, 7);
        guiClose(0);
    });
    app.init();
    EXPECT_EQ(guiStart(Recorder::windowHandler()), 0);
    EXPECT_EQ(result, 7);
}

GUI_TEST(OpenDialog, ReturnsZeroAndShowsNothing)
{
    EXPECT_EQ(guiDialog("Dialog"), 0);
    ASSERT_TRUE(board());
    settle();
    EXPECT_FALSE(isShown(board()));
    EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd"));
    guiClose(0);
    EXPECT_EQ(guiDialog(nullptr), 0);
}

GUI_TEST(OpenDialog, FailsAfterRestart)
{
    guiRestart();
    EXPECT_MISUSE(guiDialog("Dialog"), kNotStarted, -1);
    EXPECT_FALSE(board());
}

GUI_TEST(OpenDialog, FailsWhileOneIsPrepared)
{
    buildDialog("First");
    Widget const first = board();
    EXPECT_MISUSE(guiDialog("Second"), kPrepared, -1);
    EXPECT_EQ(findWidgets("v_dlgbbr"), std::vector{first});
    // The first one has not suffered.
    EXPECT_EQ(runWhileShown(
                  [&](Shown dialog) {
                      EXPECT_EQ(dialog.widget(), first);
                      EXPECT_EQ(dialog.title(), "First");
                      EXPECT_TRUE(isShown(control(1)));
                  },
                  3),
              3);
    EXPECT_EQ(guiDialog("Second"), 0);
}

GUI_TEST(OpenDialog, FailsWhileOneIsRequested)
{
    recorder.onEvent(GUI_EVENT_COMMAND, 1, [&] {
        buildDialog("First");
        EXPECT_EQ(guiStartDialog(), 0);
        EXPECT_MISUSE(guiDialog("Second"), kRequested, -1);
        EXPECT_MISUSE(guiStartDialog(), "StartDialog: no prepared dialog", -1);
        EXPECT_MISUSE(guiRunDialog(nullptr), "RunDialog: no prepared dialog", -1);
    });
    int shown = 0;
    app.whenShown("v_dlgbbr", [&](Shown dialog) {
        ++shown;
        EXPECT_EQ(dialog.title(), "First");
        EXPECT_EQ(guiDialog("Third"), 0);  // the request has been served
        guiClose(0);
        guiClose(0);
    });
    raiseEvent(GUI_EVENT_COMMAND, 1);
    EXPECT_EQ(shown, 1);
}

GUI_TEST(OpenDialog, WantsAStartedSystemBeforeAllElse)
{
    recorder.onEvent(GUI_EVENT_COMMAND, 1, [&] {
        buildDialog();
        EXPECT_EQ(guiStartDialog(), 0);
        guiRestart();
        EXPECT_MISUSE(guiDialog("Second"), kNotStarted, -1);
        guiClose(0);
    });
    raiseEvent(GUI_EVENT_COMMAND, 1);
    EXPECT_FALSE(board());
}

// The frame begins anew, and what the host has built so far is gone.
GUI_TEST(OpenDialog, IsThrownAwayByARestart)
{
    recorder.onEvent(GUI_EVENT_COMMAND, 1, [&] {
        buildDialog();
        guiRestart();
        EXPECT_FALSE(board());
        EXPECT_MISUSE(guiLabel(1, 0, 0, 10, "a"), "Label: no dialog is built at the moment", -1);
        EXPECT_MISUSE(guiRunDialog(nullptr), "RunDialog: no prepared dialog", -1);
    });
    raiseEvent(GUI_EVENT_COMMAND, 1);
    buildDialog();
    EXPECT_EQ(runWhileShown([](Shown) {}), 1);
}

GUI_TEST(OpenDialog, NothingIsPreparedByARefusedCall)
{
    // Fails silently without a top window.
    {
        Widget const main = guiGetTopWnd();
        guiSetTopWnd(nullptr);
        EXPECT_EQ(guiDialog("Nowhere"), -1);
        guiSetTopWnd(main);
        EXPECT_FALSE(board());
        EXPECT_EQ(guiDialog("Here"), 0);
        guiClose(0);
    }

    // Calls without a prepared dialog are reported.
    EXPECT_MISUSE(guiStartDialog(), "StartDialog: no prepared dialog", -1);
    EXPECT_MISUSE(guiRunDialog(Recorder::dialogHandler()), "RunDialog: no prepared dialog", -1);
    EXPECT_MISUSE(guiRunDialog(nullptr), "RunDialog: no prepared dialog", -1);
    recorder.clear();
    raiseEvent(GUI_EVENT_COMMAND, 1);
    EXPECT_EQ(recorder.events().size(), 1U);  // nothing was started
}

// A timer's handler meets the error box of another call.
GUI_TEST(OpenDialog, RunsInsideAnErrorBox)
{
    int result = -5;
    recorder.onEvent(GUI_EVENT_TIMER, [&] {
        guiTimer(0);
        ASSERT_EQ(guiDialog("Inner"), 0);
        guiButton(1, 0, 0, 40, "OK", 0);
        result = guiRunDialog(Recorder::dialogHandler());
    });
    app.whenShown("v_dlgbbr", [&](Shown dialog) {
        EXPECT_STREQ(XtName(XtParent(dialog.shell())), "v_errorbox");
        EXPECT_EQ(guiGetTopWnd(), dialog.widget());
        guiClose(4);
    });
    app.whenShown("v_errorbox", [&](Shown box) {
        guiTimer(100);
        EXPECT_TRUE(pumpUntil([&] { return result != -5; }));
        EXPECT_EQ(guiGetTopWnd(), box.widget());
        box.key(XK_Return);
    });
    EXPECT_EQ(guiRunDialog(nullptr), -1);
    EXPECT_EQ(result, 4);
    EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd"));
}

// The box of guiDialog itself: a handler inside it may run the dialog that was in its way.
GUI_TEST(OpenDialog, PreparedOneMayRunInsideTheReportOfTheNext)
{
    int result = -5;
    recorder.onEvent(GUI_EVENT_TIMER, [&] {
        guiTimer(0);
        result = guiRunDialog(Recorder::dialogHandler());
    });
    app.whenShown("v_errorbox", [&](Shown box) {
        EXPECT_EQ(box.message(), kPrepared);
        guiTimer(100);
        EXPECT_TRUE(pumpUntil([&] { return result != -5; }));
        box.key(XK_Return);
    });
    app.whenShown("v_dlgbbr", [](Shown) { guiClose(5); });
    buildDialog("First");
    EXPECT_EQ(guiDialog("Second"), -1);
    EXPECT_EQ(result, 5);
    EXPECT_FALSE(board());
}
