// The keyboard in a dialog: who has it first, and what guiGetFocus says.

#include "dialogs_support.h"

using namespace kite::testing;

namespace {

bool hasFocus(int id)
{
    return pumpUntil([=] { return XmGetFocusWidget(board()) == control(id); });
}

void buildThreeButtons()
{
    ASSERT_EQ(guiDialog("Focus"), 0);
    for (int id = 1; id <= 3; ++id) guiButton(id, id, 0, 40, "Button", 0);
}

// Runs the dialog that was built and says which of its controls a key reaches.
int idReachedByKeyboard()
{
    Recorder& recorder = Recorder::instance();
    recorder.clear();
    Script::instance().whenShown("v_dlgbbr", [](Shown dialog) {
        dialog.key(XK_F5);
        dialog.key(XK_space);
        guiClose(guiGetFocus() < 0 ? 0 : guiGetFocus());
    });
    return guiRunDialog(Recorder::dialogHandler());
}

}  // namespace

GUI_TEST(DialogFocus, IsFirstOnTheFirstControlForTheKeyboard)
{
    for (const ControlKind& kind : allControls()) {
        SCOPED_TRACE(kind.name);
        const bool takesKeyboard =
            kind.name != "Label" && kind.name != "Line" && kind.name != "Image";
        ASSERT_EQ(guiDialog("Focus"), 0);
        guiLabel(1, 0, 0, 40, "Label");
        guiLine(2, 1, 1, 0, 40);
        guiImage(3, 2, 1, 0, 40, 1);
        kind.make(10, 3);
        guiButton(11, 4, 0, 40, "Button", 0);
        const int first = takesKeyboard ? 10 : 11;
        runWhileShown([&](Shown dialog) {
            EXPECT_EQ(resource<Widget>(dialog.widget(), XmNinitialFocus), control(first));
            EXPECT_TRUE(hasFocus(first));
            EXPECT_EQ(guiGetFocus(), first);
        });
    }
}

GUI_TEST(DialogFocus, IsOnTheFirstSensitiveControlWithoutAWish)
{
    // Skips insensitive controls.
    buildThreeButtons();
    XtSetSensitive(control(1), False);
    recorder.onEvent(GUI_EVENT_INIT,
                     [] { EXPECT_EQ(resource<Widget>(board(), XmNinitialFocus), control(2)); });
    EXPECT_EQ(idReachedByKeyboard(), 2);
    EXPECT_EQ(recorder.count(toDialog(GUI_EVENT_COMMAND, 2)), 1);
    recorder.forgetReactions();

    // Failed wishes are none.
    recorder.onEvent(GUI_EVENT_INIT, [] {
        EXPECT_MISUSE(guiSetFocus(99), "SetFocus: no control with id 99 in the dialog");
        EXPECT_MISUSE(guiSetFocus(-1), "SetFocus: wrong id -1");
    });
    buildThreeButtons();
    runWhileShown([](Shown dialog) {
        EXPECT_EQ(resource<Widget>(dialog.widget(), XmNinitialFocus), control(1));
        EXPECT_TRUE(hasFocus(1));
    });

    recorder.forgetReactions();
    // A wish from inside an inner dialog's life is the inner dialog's.
    recorder.onEvent(GUI_EVENT_INIT, [&](const Event& event) {
        if (event.handler == Handler::InnerDialog) {
            guiSetFocus(3);
            guiClose(0);
            return;
        }
        buildThreeButtons();
        guiRunDialog(Recorder::innerDialogHandler());
    });
    buildThreeButtons();
    runWhileShown([](Shown dialog) {
        EXPECT_EQ(resource<Widget>(dialog.widget(), XmNinitialFocus), control(1));
        EXPECT_TRUE(hasFocus(1));
    });
}

GUI_TEST(DialogFocus, IsOnTheControlThatTheFirstEventAsksFor)
{
    recorder.onEvent(GUI_EVENT_INIT, [] {
        guiSetFocus(2);
        guiSetFocus(3);
    });
    buildThreeButtons();
    EXPECT_EQ(idReachedByKeyboard(), 3);
    EXPECT_EQ(recorder.count(toDialog(GUI_EVENT_COMMAND, 3)), 1);
    EXPECT_EQ(recorder.count(GUI_EVENT_COMMAND), 1);

    // The wish is over with the dialog.
    recorder.forgetReactions();
    buildThreeButtons();
    EXPECT_EQ(idReachedByKeyboard(), 1);
}

GUI_TEST(DialogFocus, MovesWhileTheDialogRuns)
{
    buildThreeButtons();
    runWhileShown([&](Shown dialog) {
        EXPECT_TRUE(wm::waitForFocus(dialog.widget()));
        guiSetFocus(2);
        EXPECT_TRUE(hasFocus(2));
        EXPECT_EQ(guiGetFocus(), 2);
        dialog.key(XK_Tab);
        EXPECT_EQ(guiGetFocus(), 3);
        dialog.key(XK_Tab, Shift);
        EXPECT_EQ(guiGetFocus(), 2);
    });
}

GUI_TEST(GetFocus, IsNoneOfWhatHasNoId)
{
    // Is none without a dialog.
    {
        EXPECT_EQ(guiGetFocus(), -1);
        buildDialog();
        EXPECT_EQ(guiGetFocus(), -1);  // it does not run yet
        guiClose(0);
        Widget const main = guiGetTopWnd();
        guiSetTopWnd(nullptr);
        EXPECT_EQ(guiGetFocus(), -1);
        guiSetTopWnd(main);
        app.whenShown("v_infobox", [](Shown box) {
            EXPECT_EQ(guiGetFocus(), -1);
            box.key(XK_Return);
        });
        guiInfoBox("Boxes have no controls");
    }

    // Cannot tell the cancel button.
    ASSERT_EQ(guiDialog("Focus"), 0);
    guiButton(GUI_CANCEL_BUTTON, 0, 0, 40, "Cancel", 0);
    guiButton(1, 1, 0, 40, "OK", 0);
    runWhileShown([](Shown dialog) {
        EXPECT_TRUE(wm::waitForFocus(dialog.widget()));
        EXPECT_TRUE(hasFocus(0));
        EXPECT_EQ(guiGetFocus(), -1);
    });

    // Is none when no control takes the keyboard.
    ASSERT_EQ(guiDialog("Focus"), 0);
    guiLabel(5, 0, 0, 40, "Label");
    runWhileShown([](Shown dialog) {
        EXPECT_TRUE(wm::waitForFocus(dialog.widget()));
        EXPECT_EQ(guiGetFocus(), -1);
    });
}

GUI_STARTUP_TEST(GetFocus, IsNoneBeforeTheStart)
{
    EXPECT_EQ(guiGetFocus(), -1);
    app.init();
    EXPECT_EQ(guiGetFocus(), -1);
}

GUI_TEST(GetFocus, IsThatOfTheControlThatHasTheKeyboard)
{
    // Is the id of each control that has it.
    ASSERT_EQ(guiDialog("Focus"), 0);
    guiEdit(1, 0, 0, 40, 0, 0);
    guiButton(32767, 1, 0, 40, "Largest", 0);
    guiCheck(300, 2, 0, 40, "Check");
    guiRadio(16384, 3, 0, 40, "Radio");
    runWhileShown([](Shown dialog) {
        EXPECT_TRUE(wm::waitForFocus(dialog.widget()));
        for (const int id : {32767, 1, 300, 16384}) {
            guiSetFocus(id);
            EXPECT_TRUE(hasFocus(id)) << id;
            EXPECT_EQ(guiGetFocus(), id);
        }
    });

    // Of the innermost one alone.
    buildThreeButtons();
    runWhileShown([](Shown outer) {
        EXPECT_TRUE(wm::waitForFocus(outer.widget()));
        guiSetFocus(2);
        EXPECT_TRUE(hasFocus(2));
        ASSERT_EQ(guiDialog("Inner"), 0);
        guiButton(9, 0, 0, 40, "Button", 0);
        runWhileShown([](Shown inner) {
            EXPECT_TRUE(wm::waitForFocus(inner.widget()));
            EXPECT_TRUE(hasFocus(9));
            EXPECT_EQ(guiGetFocus(), 9);
        });
        EXPECT_EQ(guiGetFocus(), 2);
    });
}

// Dialogs of different sizes, so that the widgets of one lie where others of an earlier one were.
GUI_TEST(DialogFocus, TheFirstKeyOfEveryDialogArrives)
{
    constexpr int kDialogs = 30;
    for (int i = 0; i < kDialogs; ++i) {
        SCOPED_TRACE(i);
        guiDialog("Keys");
        for (int id = 1; id <= 1 + i % 5; ++id) guiCheck(id, id, 0, 40 + 20 * i, "check");
        recorder.clear();
        runWhileShown([&](Shown dialog) {
            dialog.key(XK_space);
            EXPECT_TRUE(pumpUntil([&] { return recorder.count(GUI_EVENT_CHECK) == 1; }));
        });
    }
}
