// Dialogs that are destroyed by other means than guiClose.

#include "dialogs_support.h"

using namespace kite::testing;

namespace {

// Runs a dialog that the action takes away. What is returned then is 0.
void expectEndedBy(const std::function<void(Shown)>& takeAway)
{
    Widget const top = guiGetTopWnd();
    buildDialog("Taken away");
    Script::instance().whenShown("v_dlgbbr", takeAway);
    EXPECT_EQ(guiRunDialog(Recorder::dialogHandler()), 0);
    EXPECT_EQ(guiGetTopWnd(), top);
    // All is as before.
    buildDialog("Next");
    EXPECT_EQ(runWhileShown([](Shown) {}, 3), 3);
}

}  // namespace

GUI_TEST(DialogTakenAway, DestroyedWidgetsEndIt)
{
    // Destroyed shell ends it.
    expectEndedBy([](Shown dialog) { XtDestroyWidget(dialog.shell()); });
    EXPECT_FALSE(board());

    // Destroyed board ends it.
    expectEndedBy([](Shown dialog) { XtDestroyWidget(dialog.widget()); });
    EXPECT_FALSE(findWidget("v_dlgshell"));

    // The handler of a button takes away the dialog of the button.
    recorder.onEvent(GUI_EVENT_COMMAND, 1, [] { XtDestroyWidget(shellOf(board())); });
    buildDialog();
    app.whenShown("v_dlgbbr", [](Shown dialog) { dialog.click("OK"); });
    EXPECT_EQ(guiRunDialog(Recorder::dialogHandler()), 0);
    EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd"));
}

GUI_TEST(DialogTakenAway, InItsFirstEventItIsNeverShown)
{
    // Destroyed in its first event is never shown.
    for (const bool wholeShell : {true, false}) {
        recorder.onEvent(GUI_EVENT_INIT,
                         [=] { XtDestroyWidget(wholeShell ? shellOf(board()) : board()); });
        buildDialog();
        EXPECT_EQ(guiRunDialog(Recorder::dialogHandler()), 0);
        EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd"));
    }

    recorder.forgetReactions();
    // The host gives the screen to another window in the first event.
    {
        Widget const main = guiGetTopWnd();
        recorder.onEvent(GUI_EVENT_INIT, [&] { guiSetTopWnd(main); });
        buildDialog();
        EXPECT_EQ(guiRunDialog(Recorder::dialogHandler()), 0);
        EXPECT_EQ(guiGetTopWnd(), main);
    }
}

GUI_TEST(DialogTakenAway, DestroyedOuterWindowTakesItAlong)
{
    // Destroyed outer dialog takes the inner one along.
    {
        int inner = -5;
        buildDialog("Outer");
        app.whenShown("v_dlgbbr", [&](Shown outer) {
            buildDialog("Inner");
            app.whenShown("v_dlgbbr", [&](Shown) { XtDestroyWidget(outer.shell()); });
            inner = guiRunDialog(Recorder::innerDialogHandler());
        });
        EXPECT_EQ(guiRunDialog(Recorder::dialogHandler()), 0);
        EXPECT_EQ(inner, 0);
        EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd"));
        EXPECT_FALSE(board());
    }

    // Destroyed box takes its dialog along.
    {
        int inner = -5;
        app.whenShown("v_infobox", [&](Shown box) {
            buildDialog("Inner");
            app.whenShown("v_dlgbbr", [&](Shown) { XtDestroyWidget(box.shell()); });
            inner = guiRunDialog(Recorder::dialogHandler());
        });
        guiInfoBox("Outer");
        EXPECT_EQ(inner, 0);
        EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd"));
    }
}

GUI_TEST(DialogTakenAway, ClosedFrameEndsAllDialogs)
{
    int inner = -5;
    buildDialog("Outer");
    app.whenShown("v_dlgbbr", [&](Shown) {
        buildDialog("Inner");
        app.whenShown("v_dlgbbr", [&](Shown) {
            guiSetTopWnd(findWidget("v_mainwnd"));
            guiClose(0);
        });
        inner = guiRunDialog(Recorder::innerDialogHandler());
    });
    EXPECT_EQ(guiRunDialog(Recorder::dialogHandler()), 0);
    EXPECT_EQ(inner, 0);
    EXPECT_EQ(guiGetTopWnd(), nullptr);
}

GUI_TEST(DialogTakenAway, OneThatDoesNotRunYetMayBeDestroyed)
{
    // One under construction may be destroyed.
    for (const bool wholeShell : {true, false}) {
        buildDialog("Destroyed");
        XtDestroyWidget(wholeShell ? shellOf(board()) : board());
        EXPECT_MISUSE(guiLabel(2, 0, 0, 20, "Label"), "Label: no dialog is built at the moment");
        EXPECT_MISUSE(guiStartDialog(), "StartDialog: no prepared dialog", -1);
        EXPECT_MISUSE(guiRunDialog(nullptr), "RunDialog: no prepared dialog", -1);
        buildDialog("Next");
        EXPECT_EQ(runWhileShown([](Shown dialog) { EXPECT_EQ(dialog.title(), "Next"); }, 2), 2);
    }

    // One under construction goes with its parent.
    buildDialog("Outer");
    app.whenShown("v_dlgbbr", [](Shown outer) {
        buildDialog("Inner");
        XtDestroyWidget(outer.shell());
    });
    EXPECT_EQ(guiRunDialog(Recorder::dialogHandler()), 0);
    EXPECT_MISUSE(guiRunDialog(nullptr), "RunDialog: no prepared dialog", -1);
    buildDialog("Next");
    EXPECT_EQ(runWhileShown([](Shown) {}, 2), 2);

    // Requested one may be destroyed.
    recorder.clear();
    recorder.onEvent(GUI_EVENT_COMMAND, 1, [] {
        buildDialog("Destroyed");
        guiStartDialog();
        XtDestroyWidget(shellOf(board()));
    });
    raiseEvent(GUI_EVENT_COMMAND, 1);
    EXPECT_THAT(recorder.events(), ::testing::ElementsAre(toWindow(GUI_EVENT_COMMAND, 1)));
    EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd"));
    buildDialog("Next");
    EXPECT_EQ(runWhileShown([](Shown) {}, 2), 2);
}
