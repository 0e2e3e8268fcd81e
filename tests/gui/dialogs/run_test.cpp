// guiRunDialog: from the first event to the result.

#include <climits>

#include "dialogs_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

// Closes a dialog in its first event.
int resultOf(int code)
{
    Recorder::instance().onEvent(GUI_EVENT_INIT, [=] { guiClose(code); });
    buildDialog();
    return guiRunDialog(Recorder::dialogHandler());
}

}  // namespace

GUI_TEST(RunDialog, RaisesTheFirstEventBeforeItIsShown)
{
    recorder.clear();
    Widget const main = guiGetTopWnd();
    recorder.onEvent(GUI_EVENT_INIT, [&] {
        EXPECT_EQ(guiGetTopWnd(), board());
        EXPECT_FALSE(XtIsManaged(board()));
        EXPECT_TRUE(holdsFor([] { return !isShown(board()); }, milliseconds{50}));
    });
    buildDialog();
    EXPECT_EQ(runWhileShown(
                  [&](Shown dialog) {
                      EXPECT_THAT(recorder.events(), ElementsAre(toDialog(GUI_EVENT_INIT)));
                      EXPECT_EQ(guiGetTopWnd(), dialog.widget());
                  },
                  5),
              5);
    EXPECT_EQ(guiGetTopWnd(), main);
    EXPECT_THAT(recorder.events(), ElementsAre(toDialog(GUI_EVENT_INIT)));
}

GUI_TEST(RunDialog, WithoutHandlerTellsTheHostCallback)
{
    recorder.clear();
    buildDialog();
    app.whenShown("v_dlgbbr", [&](Shown dialog) {
        recorder.onEvent(GUI_EVENT_COMMAND, 1, [] { guiClose(8); });
        dialog.click("OK");
    });
    EXPECT_EQ(guiRunDialog(nullptr), 8);
    EXPECT_THAT(recorder.events(),
                ElementsAre(toHost(GUI_EVENT_INIT), toHost(GUI_EVENT_COMMAND, 1)));
}

GUI_TEST(RunDialog, EachDialogHasItsOwnHandler)
{
    recorder.clear();
    buildDialog();
    runWhileShown([](Shown) { raiseEvent(GUI_EVENT_COMMAND, 77); });
    recorder.onEvent(GUI_EVENT_INIT, [] { guiClose(0); });
    buildDialog();
    guiRunDialog(Recorder::innerDialogHandler());
    raiseEvent(GUI_EVENT_COMMAND, 78);
    EXPECT_THAT(recorder.events(),
                ElementsAre(toDialog(GUI_EVENT_INIT), toDialog(GUI_EVENT_COMMAND, 77),
                            toInnerDialog(GUI_EVENT_INIT), toWindow(GUI_EVENT_COMMAND, 78)));
}

GUI_TEST(RunDialog, ClosedInItsFirstEventIsNeverShown)
{
    recorder.clear();
    bool wasMapped = false;
    recorder.onEvent(GUI_EVENT_INIT, [&] {
        onCallback(board(), XmNmapCallback, [&] { wasMapped = true; });
        guiClose(17);
        EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd"));
    });
    buildDialog();
    EXPECT_EQ(guiRunDialog(Recorder::dialogHandler()), 17);
    EXPECT_FALSE(wasMapped);
    EXPECT_FALSE(board());
    EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd"));
    EXPECT_THAT(recorder.events(), ElementsAre(toDialog(GUI_EVENT_INIT)));
}

GUI_TEST(RunDialog, ReturnsTheCodeOfClose)
{
    // Returns the code of close.
    for (const int code : {0, 1, 2, 255, 256, 32768, INT_MAX}) EXPECT_EQ(resultOf(code), code);
    recorder.forgetReactions();
    buildDialog();
    EXPECT_EQ(runWhileShown([](Shown) {}, INT_MAX), INT_MAX);
    buildDialog();
    EXPECT_EQ(runWhileShown([](Shown) {}, 0), 0);

    // The result belongs to one run.
    EXPECT_EQ(resultOf(4), 4);
    EXPECT_EQ(resultOf(0), 0);
    EXPECT_EQ(resultOf(3), 3);
}

GUI_TEST(RunDialog, NegativeCodesAreReportedAndBecomeZero)
{
    const std::string message = "Close: negative return code - 0 is used";
    for (const int code : {-1, -3, INT_MIN}) {
        SCOPED_TRACE(code);
        EXPECT_MISUSE(resultOf(code), message, 0);
        recorder.forgetReactions();
        buildDialog();
        EXPECT_MISUSE(runWhileShown([](Shown) {}, code), message, 0);
        EXPECT_FALSE(board());
    }
}

GUI_TEST(RunDialog, AnotherCanBeBuiltAtOnce)
{
    recorder.onEvent(GUI_EVENT_INIT, [&] {
        recorder.forgetReactions();
        EXPECT_EQ(guiDialog("In the first event"), 0);
        guiButton(1, 0, 0, 40, "OK", 1);
        guiClose(0);
    });
    buildDialog();
    EXPECT_EQ(runWhileShown(
                  [](Shown) {
                      EXPECT_THAT(errorsDuring([] { buildDialog("While it runs"); }), IsEmpty());
                      guiClose(0);
                  },
                  2),
              2);
}

GUI_TEST(RunDialog, ButtonsAreThoseOfOneDialog)
{
    // Default button takes the shadow of all buttons.
    ASSERT_EQ(guiDialog("Buttons"), 0);
    guiButton(1, 0, 0, 40, "One", 1);
    guiButton(2, 1, 0, 40, "Two", 0);
    guiButton(3, 2, 0, 40, "Three", 1);
    guiButton(0, 3, 0, 40, "Cancel", 0);
    runWhileShown([](Shown dialog) {
        EXPECT_EQ(resource<Widget>(dialog.widget(), XmNdefaultButton), control(3));
        EXPECT_EQ(resource<Widget>(dialog.widget(), XmNcancelButton), control(0));
        for (int id = 0; id <= 3; ++id)
            EXPECT_EQ(resource<Dimension>(control(id), XmNdefaultButtonShadowThickness), 0) << id;
    });

    // The default and cancel buttons and the focus are those of one dialog.
    ASSERT_EQ(guiDialog("First"), 0);
    guiButton(GUI_CANCEL_BUTTON, 0, 0, 40, "Cancel", 1);
    runWhileShown([](Shown dialog) {
        EXPECT_EQ(resource<Widget>(dialog.widget(), XmNdefaultButton), control(0));
        EXPECT_EQ(resource<Widget>(dialog.widget(), XmNcancelButton), control(0));
    });
    ASSERT_EQ(guiDialog("Second"), 0);
    guiLabel(1, 0, 0, 40, "Label");
    runWhileShown([](Shown dialog) {
        EXPECT_EQ(resource<Widget>(dialog.widget(), XmNdefaultButton), nullptr);
        EXPECT_EQ(resource<Widget>(dialog.widget(), XmNcancelButton), nullptr);
        EXPECT_EQ(resource<Widget>(dialog.widget(), XmNinitialFocus), nullptr);
    });
}

// All kinds of events are processed: timers, work on the display and the keyboard.
GUI_TEST(RunDialog, ProcessesAllKindsOfEvents)
{
    recorder.clear();
    recorder.onEvent(GUI_EVENT_COMMAND, 1, [] { guiClose(1); });
    buildDialog();
    app.whenShown("v_dlgbbr", [&](Shown dialog) {
        guiTimer(100);
        EXPECT_TRUE(app.waitForEvent(toDialog(GUI_EVENT_TIMER)));
        dialog.key(XK_space);
    });
    EXPECT_EQ(guiRunDialog(Recorder::dialogHandler()), 1);
}

GUI_TEST(RunDialog, DestroyedControlsAreNoPartOfIt)
{
    ASSERT_EQ(guiDialog("Controls"), 0);
    guiLabel(1, 0, 0, 20, "Stays");
    guiButton(GUI_CANCEL_BUTTON, 40, 0, 200, "Goes", 1);
    guiEdit(2, 41, 0, 300, 0, 0);
    guiButton(3, 1, 0, 20, "Stays", 0);
    XtDestroyWidget(control(0));
    XtDestroyWidget(control(2));
    EXPECT_EQ(runWhileShown([](Shown dialog) {
                  EXPECT_LT(rectOf(dialog.widget()).height, 150);
                  EXPECT_EQ(resource<Widget>(dialog.widget(), XmNdefaultButton), nullptr);
                  EXPECT_EQ(resource<Widget>(dialog.widget(), XmNcancelButton), nullptr);
                  EXPECT_EQ(resource<Widget>(dialog.widget(), XmNinitialFocus), control(3));
              }),
              1);
}

GUI_TEST(RunDialog, NullTextsAreEmpty)
{
    ASSERT_EQ(guiDialog(nullptr), 0);
    guiLabel(1, 0, 0, 20, nullptr);
    guiButton(2, 1, 0, 20, nullptr, 0);
    guiCheck(3, 2, 0, 20, nullptr);
    guiRadio(4, 3, 0, 20, nullptr);
    EXPECT_EQ(runWhileShown([](Shown dialog) {
                  for (int id = 1; id <= 4; ++id) EXPECT_EQ(labelOf(control(id)), "") << id;
                  EXPECT_EQ(dialog.title(), "");
              }),
              1);
}
