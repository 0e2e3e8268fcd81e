// Dialogs in dialogs, boxes in dialogs.

#include "dialogs_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;

namespace {

// Runs a dialog on the one before, as deep as asked; each returns its depth.
void nest(int depth, int deepest)
{
    Widget const outer = guiGetTopWnd();
    buildDialog(std::to_string(depth).c_str());
    const int result = runWhileShown(
        [&](Shown dialog) {
            EXPECT_EQ(XtParent(dialog.shell()), outer);
            EXPECT_EQ(guiGetTopWnd(), dialog.widget());
            if (depth < deepest) nest(depth + 1, deepest);
            EXPECT_EQ(guiGetTopWnd(), dialog.widget());
            EXPECT_TRUE(isShown(dialog.widget()));
            EXPECT_EQ(dialog.title(), std::to_string(depth));
        },
        depth);
    EXPECT_EQ(result, depth);
    EXPECT_EQ(guiGetTopWnd(), outer);
}

constexpr int kDeepest = 50;

// Runs the next dialog on the one that was just shown, and closes this one when that is closed.
void goDeeper(XtPointer data, XtIntervalId*)
{
    const int depth = *static_cast<int*>(data);
    Widget const dialog = guiGetTopWnd();
    EXPECT_TRUE(XtIsManaged(dialog)) << depth;
    if (depth < kDeepest) {
        buildDialog();
        EXPECT_EQ(guiRunDialog(Recorder::dialogHandler()), depth + 1);
    }
    EXPECT_EQ(guiGetTopWnd(), dialog) << depth;
    EXPECT_TRUE(XtIsManaged(dialog)) << depth;
    guiClose(depth);
}

}  // namespace

GUI_TEST(DialogNesting, EachDialogBelongsToTheOneThatItFound)
{
    nest(1, 3);
    EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd"));
}

// By time-outs of the toolkit: looking for fifty windows again and again takes long.
GUI_TEST(DialogNesting, IsFiftyDeep)
{
    Widget const main = guiGetTopWnd();
    int depth = 0;
    recorder.onEvent(GUI_EVENT_INIT, [&] {
        ++depth;
        XtAppAddTimeOut(toolkit::context(), 1, goDeeper, &depth);
    });
    buildDialog();
    EXPECT_EQ(guiRunDialog(Recorder::dialogHandler()), 1);
    EXPECT_EQ(guiGetTopWnd(), main);
    EXPECT_EQ(recorder.count(toDialog(GUI_EVENT_INIT)), kDeepest);
    EXPECT_FALSE(board());
}

GUI_TEST(DialogNesting, EventsGoToTheInnermostHandler)
{
    recorder.clear();
    recorder.onEvent(GUI_EVENT_COMMAND, 1, [&](const Event& event) {
        if (event.handler == Handler::InnerDialog) {
            guiClose(2);
            return;
        }
        buildDialog("Inner");
        app.whenShown("v_dlgbbr", [](Shown inner) { inner.click("OK"); });
        EXPECT_EQ(guiRunDialog(Recorder::innerDialogHandler()), 2);
        guiClose(3);
    });
    buildDialog("Outer");
    app.whenShown("v_dlgbbr", [](Shown outer) { outer.click("OK"); });
    EXPECT_EQ(guiRunDialog(Recorder::dialogHandler()), 3);
    EXPECT_THAT(recorder.events(),
                ElementsAre(toDialog(GUI_EVENT_INIT), toDialog(GUI_EVENT_COMMAND, 1),
                            toInnerDialog(GUI_EVENT_INIT), toInnerDialog(GUI_EVENT_COMMAND, 1)));
}

// The window below it is not on the screen yet.
GUI_TEST(DialogNesting, MayBeginInTheFirstEvent)
{
    app.whenShown("v_dlgbbr", [](Shown inner) {
        EXPECT_EQ(inner.title(), "Inner");
        EXPECT_FALSE(isShown(XtParent(inner.shell())));
        guiClose(4);
    });
    recorder.onEvent(GUI_EVENT_INIT, [&](const Event& event) {
        if (event.handler != Handler::Dialog) return;
        Widget const outer = board();
        buildDialog("Inner");
        EXPECT_EQ(guiRunDialog(Recorder::innerDialogHandler()), 4);
        EXPECT_EQ(guiGetTopWnd(), outer);
    });
    buildDialog("Outer");
    EXPECT_EQ(runWhileShown([](Shown outer) { EXPECT_EQ(outer.title(), "Outer"); }, 5), 5);
    EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd"));
}

// Outer and inner one may be closed by one handler; each has its own code.
GUI_TEST(DialogNesting, ClosingTwiceClosesTheOuterOneAsWell)
{
    int inner = -5;
    recorder.onEvent(GUI_EVENT_COMMAND, 1, [&](const Event& event) {
        if (event.handler == Handler::InnerDialog) {
            guiClose(2);
            guiClose(3);
            return;
        }
        buildDialog("Inner");
        app.whenShown("v_dlgbbr", [](Shown dialog) { dialog.click("OK"); });
        inner = guiRunDialog(Recorder::innerDialogHandler());
        EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd"));
    });
    buildDialog("Outer");
    app.whenShown("v_dlgbbr", [](Shown dialog) { dialog.click("OK"); });
    EXPECT_EQ(guiRunDialog(Recorder::dialogHandler()), 3);
    EXPECT_EQ(inner, 2);
}

GUI_TEST(DialogNesting, BoxesAndDialogsMayBeMixed)
{
    // Boxes belong to the dialog.
    buildDialog();
    runWhileShown([&](Shown dialog) {
        app.whenShown("v_askbox", [&](Shown box) {
            EXPECT_EQ(XtParent(box.shell()), dialog.widget());
            EXPECT_EQ(guiGetTopWnd(), box.widget());
            box.key(XK_Return);
        });
        EXPECT_EQ(guiYesNoBox("In a dialog?"), 1);
        EXPECT_EQ(guiGetTopWnd(), dialog.widget());
        EXPECT_TRUE(isShown(dialog.widget()));
        EXPECT_EQ(dialog.title(), "Dialog");
    });

    // Box in the first event comes before the dialog.
    recorder.onEvent(GUI_EVENT_INIT, [&] {
        app.whenShown("v_infobox", [](Shown box) {
            EXPECT_FALSE(isShown(board()));
            box.key(XK_Return);
        });
        guiInfoBox("Before the dialog");
        EXPECT_EQ(guiGetTopWnd(), board());
    });
    buildDialog();
    EXPECT_EQ(runWhileShown([](Shown) {}, 5), 5);

    recorder.forgetReactions();
    // Dialog in a box belongs to it.
    app.whenShown("v_askbox", [&](Shown box) {
        buildDialog();
        EXPECT_EQ(runWhileShown(
                      [&](Shown dialog) { EXPECT_EQ(XtParent(dialog.shell()), box.widget()); }, 6),
                  6);
        EXPECT_EQ(guiGetTopWnd(), box.widget());
        box.key(XK_Return);
    });
    EXPECT_EQ(guiYesNoBox("A dialog in a box?"), 1);
}
