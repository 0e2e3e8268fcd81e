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

GUI_TEST(DialogTakenAway, DestroyedShellEndsIt)
{
    expectEndedBy([](Shown dialog) { XtDestroyWidget(dialog.shell()); });
    EXPECT_FALSE(board());
}

GUI_TEST(DialogTakenAway, DestroyedBoardEndsIt)
{
    expectEndedBy([](Shown dialog) { XtDestroyWidget(dialog.widget()); });
    EXPECT_FALSE(findWidget("v_dlgshell"));
}

GUI_TEST(DialogTakenAway, DestroyedInItsFirstEventIsNeverShown)
{
    for (const bool wholeShell : {true, false}) {
        recorder.onEvent(GUI_EVENT_INIT,
                         [=] { XtDestroyWidget(wholeShell ? shellOf(board()) : board()); });
        buildDialog();
        EXPECT_EQ(guiRunDialog(Recorder::dialogHandler()), 0);
        EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd"));
    }
}

// The handler of a button takes away the dialog of the button.
GUI_TEST(DialogTakenAway, DestroyedByItsHandlerEndsIt)
{
    recorder.onEvent(GUI_EVENT_COMMAND, 1, [] { XtDestroyWidget(shellOf(board())); });
    buildDialog();
    app.whenShown("v_dlgbbr", [](Shown dialog) { dialog.click("OK"); });
    EXPECT_EQ(guiRunDialog(Recorder::dialogHandler()), 0);
    EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd"));
}

GUI_TEST(DialogTakenAway, DestroyedOuterDialogTakesTheInnerOneAlong)
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

GUI_TEST(DialogTakenAway, DestroyedBoxTakesItsDialogAlong)
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

// The host gives the screen to another window in the first event.
GUI_TEST(DialogTakenAway, OfItsPlaceOnTopInItsFirstEventIsNeverShown)
{
    Widget const main = guiGetTopWnd();
    recorder.onEvent(GUI_EVENT_INIT, [&] { guiSetTopWnd(main); });
    buildDialog();
    EXPECT_EQ(guiRunDialog(Recorder::dialogHandler()), 0);
    EXPECT_EQ(guiGetTopWnd(), main);
}

GUI_TEST(DialogTakenAway, OneUnderConstructionMayBeDestroyed)
{
    for (const bool wholeShell : {true, false}) {
        buildDialog("Destroyed");
        XtDestroyWidget(wholeShell ? shellOf(board()) : board());
        EXPECT_MISUSE(guiLabel(2, 0, 0, 20, "Label"), "Label: no dialog is built at the moment");
        EXPECT_MISUSE(guiStartDialog(), "StartDialog: no prepared dialog", -1);
        EXPECT_MISUSE(guiRunDialog(nullptr), "RunDialog: no prepared dialog", -1);
        buildDialog("Next");
        EXPECT_EQ(runWhileShown([](Shown dialog) { EXPECT_EQ(dialog.title(), "Next"); }, 2), 2);
    }
}

GUI_TEST(DialogTakenAway, OneUnderConstructionGoesWithItsParent)
{
    buildDialog("Outer");
    app.whenShown("v_dlgbbr", [](Shown outer) {
        buildDialog("Inner");
        XtDestroyWidget(outer.shell());
    });
    EXPECT_EQ(guiRunDialog(Recorder::dialogHandler()), 0);
    EXPECT_MISUSE(guiRunDialog(nullptr), "RunDialog: no prepared dialog", -1);
    buildDialog("Next");
    EXPECT_EQ(runWhileShown([](Shown) {}, 2), 2);
}

GUI_TEST(DialogTakenAway, RequestedOneMayBeDestroyed)
{
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
