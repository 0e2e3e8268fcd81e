// What happens while a popup menu waits for the user.

#include "popups_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;

namespace {

void buildDialog()
{
    guiEdit(1, 0, 0, 60, 0, 0);
    guiButton(3, 1, 0, 60, "Button", 0);
}

}  // namespace

GUI_TEST(PopupWait, DeliversEventsOfTheTimer)
{
    guiTimer(100);
    EXPECT_EQ(runPopup([this](Shown menu) {
                  const int before = recorder.count(GUI_EVENT_TIMER);
                  EXPECT_TRUE(
                      pumpUntil([&] { return recorder.count(GUI_EVENT_TIMER) >= before + 3; }));
                  EXPECT_TRUE(isShown(menu.widget()));
                  picking("Two")(menu);
              }),
              2);
    guiTimer(0);
}

// Only one menu can have mouse and keyboard.
GUI_TEST(PopupWait, EndsWhenAnotherMenuComesUp)
{
    int inner = -5;
    const auto showInner = [&] {
        buildPopup({"A", "B"});
        app.whenShown("p_menu", picking("B"));
        inner = guiShowPopMenu(20, 20, 0, 0);
    };
    const int outer = runPopup([&](Shown menu) {
        soon(showInner);
        EXPECT_TRUE(pumpUntil([&] { return inner != -5; }));
        EXPECT_FALSE(isShown(menu.widget()));
    });
    EXPECT_EQ(inner, 2);
    EXPECT_EQ(outer, 0);
    EXPECT_TRUE(isPopupGone());
    EXPECT_EQ(runPopup(picking("Three")), 3) << "and the next one";
}

// Without a choice: what it belonged to has gone.
GUI_TEST(PopupWait, EndsWithTheDialog)
{
    for (int i = 0; i < 3; ++i) {
        int result = -5;
        ASSERT_EQ(guiDialog("Dialog"), 0);
        buildDialog();
        app.whenShown("v_dlgbbr",
                      [&](Shown) { result = runPopup([](Shown) { soon([] { guiClose(5); }); }); });
        EXPECT_EQ(guiRunDialog(recorder.dialogHandler()), 5);
        EXPECT_EQ(result, 0);
        EXPECT_TRUE(isPopupGone());
        app.click("v_text");
        EXPECT_EQ(runPopup(picking("Two")), 2) << "the mouse is free again";
    }
}

// However it goes: the drop-down list of the next dialog has mouse and keyboard.
GUI_TEST(PopupWait, LeavesNoGrabBehind)
{
    const std::function<void()> ways[] = {
        [] { guiClose(5); },
        [] { wm::requestClose(guiGetTopWnd()); },
        [] { XtDestroyWidget(XtParent(guiGetTopWnd())); },
    };
    recorder.onEvent(GUI_EVENT_COMMAND, 0, [] { guiClose(5); });
    recorder.onEvent(GUI_EVENT_INIT, [] {
        if (guiIdStatus(6) < 0) return;
        guiAppendItem(6, "one");
        guiAppendItem(6, "two");
    });
    for (const auto& close : ways) {
        SCOPED_TRACE(&close - ways);
        ASSERT_EQ(guiDialog("Dialog"), 0);
        buildDialog();
        app.whenShown("v_dlgbbr", [&](Shown) { runPopup([&](Shown) { soon(close); }); });
        guiRunDialog(recorder.dialogHandler());
        EXPECT_TRUE(isPopupGone());
        runDialog([] { guiChoice(6, 0, 0, 60); },
                  [this](Shown) {
                      Widget const choice = controlOf(6);
                      robot.click(choice, LeftButton, Point{rectOf(choice).width - 8, 8});
                      robot.keyHandled(XK_Down);
                      robot.keyHandled(XK_Return);
                      EXPECT_EQ(guiGetPos(6), 1);
                  });
    }
}

GUI_STARTUP_TEST(PopupWait, EndsWithTheFrame)
{
    int result = -5;
    app.run([&] { result = runPopup([](Shown) { soon([] { guiClose(0); }); }); });
    EXPECT_EQ(result, 0);
}

GUI_TEST(PopupWait, EndsWithItsOwnMenuOnly)
{
    EXPECT_EQ(runPopup([](Shown menu) { XtDestroyWidget(menu.shell()); }), 0);
    EXPECT_EQ(runPopup([](Shown menu) {
                  buildPopup({"A", "B"});
                  picking("Two")(menu);
              }),
              2);
    EXPECT_EQ(findWidgets("p_menu").size(), 1U) << "the other one is still there";
    app.whenShown("p_menu", picking("B"));
    EXPECT_EQ(guiShowPopMenu(0, 0, 0, 0), 2);
}

GUI_TEST(PopupWait, MayBeInTheHandlerOfAMouseButton)
{
    std::vector<int> results;
    recorder.onEvent(GUI_EVENT_CONTEXT, 3, [&] {
        buildPopup();
        results.push_back(guiShowPopMenu(0, 0, 0, 0));
    });
    runDialog(buildDialog, [this](Shown dialog) {
        for (const char* const label : {"One", "Two", "Three"}) {
            app.whenShown("p_menu", picking(label));
            robot.click(controlOf(3), RightButton);
        }
        app.whenShown("p_menu", dismiss);
        robot.click(controlOf(3), RightButton);
        EXPECT_EQ(recorder.count(GUI_EVENT_CONTEXT), 4);
        dialog.type("typed");
        EXPECT_EQ(textOf(controlOf(1)), "typed");
    });
    EXPECT_THAT(results, ElementsAre(1, 2, 3, 0));

    recorder.onEvent(GUI_EVENT_CONTEXT, 3, [&] {
        buildPopup();
        guiClose(guiShowPopMenu(0, 0, 0, 3));
    });
    ASSERT_EQ(guiDialog(""), 0);
    buildDialog();
    app.whenShown("v_dlgbbr", [this](Shown) {
        app.whenShown("p_menu", picking("Three"));
        robot.click(controlOf(3), RightButton);
    });
    EXPECT_EQ(guiRunDialog(recorder.dialogHandler()), 3) << "closed by the handler";
    EXPECT_TRUE(isPopupGone());
}

// The menu has held mouse and keyboard, which the box and the dialog need.
GUI_TEST(PopupWait, EndsWhenABoxOrDialogComesUp)
{
    int result = -5;
    const auto resultOf = [&](const std::function<void()>& show) {
        result = -5;
        return runPopup([&](Shown menu) {
            soon([&] { show(); });
            EXPECT_TRUE(pumpUntil([&] { return result != -5; }));
            EXPECT_FALSE(isShown(menu.widget()));
        });
    };
    const auto showBox = [&] {
        app.whenShown("v_askbox", [](Shown box) { box.click("No"); });
        result = guiYesNoBox("The time is up. Go on?");
    };
    const auto showDialog = [&] {
        ASSERT_EQ(guiDialog(""), 0);
        buildDialog();
        app.whenShown("v_dlgbbr", [](Shown dialog) {
            dialog.type("typed");
            EXPECT_EQ(textOf(controlOf(1)), "typed");
            guiClose(4);
        });
        result = guiRunDialog(recorder.dialogHandler());
    };
    EXPECT_EQ(resultOf(showBox), 0);
    EXPECT_EQ(result, 0);
    EXPECT_EQ(resultOf(showDialog), 0);
    EXPECT_EQ(result, 4);
    EXPECT_EQ(runPopup(picking("Two")), 2) << "the next one";
}
