// guiClose, whatever there is to close.

#include "dialogs_support.h"

using namespace kite::testing;
using ::testing::IsEmpty;

GUI_STARTUP_TEST(CloseDialog, WithoutAnyWindowNothingHappens)
{
    guiClose(1);
    guiClose(-1);
    app.init();
    Widget const main = guiGetTopWnd();
    guiSetTopWnd(nullptr);
    guiClose(-1);
    guiSetTopWnd(main);
    EXPECT_TRUE(isShown(main));
    EXPECT_FALSE(findWidget("v_errorbox"));
}

GUI_TEST(CloseDialog, AbandonsTheOneThatDoesNotRunYet)
{
    // Whatever the code: nobody gets it.
    for (const int code : {0, 5, -3}) {
        buildDialog();
        recorder.clear();
        EXPECT_THAT(errorsDuring([=] { guiClose(code); }), IsEmpty());
        EXPECT_FALSE(board());
        EXPECT_FALSE(findWidget("v_dlgshell"));
        EXPECT_TRUE(isShown(app.find("v_mainwnd")));
        EXPECT_MISUSE(guiRunDialog(nullptr), "RunDialog: no prepared dialog", -1);
        EXPECT_THAT(recorder.events(), IsEmpty());
    }

    // Abandons the inner one before it closes the outer one.
    buildDialog("Outer");
    EXPECT_EQ(runWhileShown(
                  [](Shown outer) {
                      buildDialog("Inner");
                      guiClose(8);
                      EXPECT_EQ(guiGetTopWnd(), outer.widget());
                      EXPECT_TRUE(isShown(outer.widget()));
                  },
                  2),
              2);

    // Abandons a requested one.
    recorder.clear();
    recorder.onEvent(GUI_EVENT_COMMAND, 1, [] {
        buildDialog("Requested");
        EXPECT_EQ(guiStartDialog(), 0);
        EXPECT_THAT(errorsDuring([] { guiClose(-3); }), IsEmpty());
        EXPECT_EQ(guiDialog("Another"), 0);
        guiClose(0);
    });
    raiseEvent(GUI_EVENT_COMMAND, 1);
    EXPECT_THAT(recorder.events(), ::testing::ElementsAre(toWindow(GUI_EVENT_COMMAND, 1)));
    EXPECT_FALSE(board());
    EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd"));
}

GUI_TEST(CloseDialog, GivesTheWindowBehindBack)
{
    // Leaves the running one at once.
    {
        bool isGone = false;
        recorder.onEvent(GUI_EVENT_COMMAND, 1, [&] {
            Widget const dialog = board();
            guiClose(4);
            EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd"));
            EXPECT_FALSE(XtIsManaged(dialog));
            raiseEvent(GUI_EVENT_COMMAND, 2);
            isGone = true;
        });
        buildDialog();
        app.whenShown("v_dlgbbr", [](Shown dialog) { dialog.click("OK"); });
        EXPECT_EQ(guiRunDialog(Recorder::dialogHandler()), 4);
        EXPECT_TRUE(isGone);
        EXPECT_EQ(recorder.count(toWindow(GUI_EVENT_COMMAND, 2)), 1);
    }

    recorder.forgetReactions();
    // Of a nested one gives the keyboard back.
    buildDialog("Outer");
    runWhileShown([&](Shown outer) {
        buildDialog("Inner");
        runWhileShown([](Shown) {});
        outer.key(XK_space);
        EXPECT_TRUE(app.waitForEvent(toDialog(GUI_EVENT_COMMAND, 1)));
    });
}

// The second call finds the frame.
GUI_TEST(CloseDialog, TwiceClosesTheFrameBehindTheDialog)
{
    recorder.onEvent(GUI_EVENT_COMMAND, 1, [] {
        guiClose(4);
        guiClose(5);
    });
    buildDialog();
    app.whenShown("v_dlgbbr", [](Shown dialog) { dialog.click("OK"); });
    EXPECT_EQ(guiRunDialog(Recorder::dialogHandler()), 4);
    EXPECT_EQ(guiGetTopWnd(), nullptr);
}

GUI_TEST(CloseDialog, TwiceInTheFirstEventClosesTheFrameAsWell)
{
    recorder.onEvent(GUI_EVENT_INIT, [] {
        guiClose(4);
        guiClose(5);
    });
    buildDialog();
    EXPECT_EQ(guiRunDialog(Recorder::dialogHandler()), 4);
    EXPECT_EQ(guiGetTopWnd(), nullptr);
}

// One under construction belongs to the frame and goes first.
GUI_TEST(CloseDialog, OfTheFrameComesAfterTheOneUnderConstruction)
{
    buildDialog();
    guiClose(0);
    EXPECT_NE(guiGetTopWnd(), nullptr);
    guiClose(0);
    EXPECT_EQ(guiGetTopWnd(), nullptr);
}

// It is not the box that is closed.
GUI_TEST(CloseDialog, AbandonsTheOneUnderConstructionBehindABox)
{
    buildDialog();
    app.whenShown("v_askbox", [](Shown box) {
        guiClose(0);
        EXPECT_FALSE(board());
        EXPECT_EQ(guiGetTopWnd(), box.widget());
        box.key(XK_Return);
    });
    EXPECT_EQ(guiYesNoBox("Still here?"), 1);
}
