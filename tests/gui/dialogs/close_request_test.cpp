// The window manager asks to close dialogs and what is behind them. Run under several window managers.

#include "dialogs_support.h"
#include "events/bell_watch.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

const Event request = toDialog(GUI_EVENT_COMMAND, GUI_COMMAND_CLOSE);

// Asks by other ways than the user's: the window manager does not let the user at windows that are blocked.
void expectRefused(Widget shell, Widget top)
{
    Recorder& recorder = Recorder::instance();
    BellWatch bell;
    recorder.clear();
    wm::requestClose(shell);
    EXPECT_TRUE(bell.waitForRings(1));
    settle();
    EXPECT_THAT(bell.rings(), ElementsAre(50));
    EXPECT_THAT(recorder.events(), IsEmpty());
    EXPECT_TRUE(isShown(shell));
    EXPECT_TRUE(isShown(top));
    EXPECT_EQ(guiGetTopWnd(), top);
}

}  // namespace

GUI_TEST(DialogCloseRequest, IsAnEventOfTheDialog)
{
    buildDialog();
    for (void (*close)(wm::Client) : {wm::close, wm::closeByDecoration, wm::requestClose}) {
        if (guiGetTopWnd() == app.find("v_mainwnd") && !board()) buildDialog();
        EXPECT_EQ(runWhileShown(
                      [&](Shown dialog) {
                          BellWatch bell;
                          recorder.clear();
                          close(dialog.widget());
                          EXPECT_TRUE(app.waitForEvent(request));
                          settle();
                          EXPECT_THAT(recorder.events(), ElementsAre(request));
                          EXPECT_THAT(bell.rings(), IsEmpty());
                          EXPECT_TRUE(isShown(dialog.widget()));  // it is the handler's to close it
                      },
                      4),
                  4);
    }
}

GUI_TEST(DialogCloseRequest, MayCloseTheDialog)
{
    recorder.onEvent(GUI_EVENT_COMMAND, GUI_COMMAND_CLOSE, [] { guiClose(11); });
    buildDialog();
    app.whenShown("v_dlgbbr", [](Shown dialog) { dialog.closeByWindowManager(); });
    EXPECT_EQ(guiRunDialog(Recorder::dialogHandler()), 11);
    EXPECT_TRUE(isShown(app.find("v_mainwnd")));
}

GUI_TEST(DialogCloseRequest, GoesToTheHostCallbackWithoutHandler)
{
    const Event toCallback = toHost(GUI_EVENT_COMMAND, GUI_COMMAND_CLOSE);
    buildDialog();
    app.whenShown("v_dlgbbr", [&](Shown dialog) {
        recorder.clear();
        dialog.closeByWindowManager();
        EXPECT_TRUE(app.waitForEvent(toCallback));
        EXPECT_THAT(recorder.events(), ElementsAre(toCallback));
        guiClose(1);
    });
    EXPECT_EQ(guiRunDialog(nullptr), 1);
}

GUI_TEST(DialogCloseRequest, BehindTheTopWindowRingsTheBell)
{
    // Of the frame behind rings the bell.
    buildDialog();
    EXPECT_EQ(runWhileShown([&](Shown dialog) { expectRefused(app.shell(), dialog.widget()); }, 3),
              3);

    // Of the outer dialog rings the bell.
    buildDialog("Outer");
    EXPECT_EQ(runWhileShown(
                  [&](Shown outer) {
                      buildDialog("Inner");
                      EXPECT_EQ(runWhileShown(
                                    [&](Shown inner) {
                                        expectRefused(outer.shell(), inner.widget());
                                        expectRefused(app.shell(), inner.widget());
                                    },
                                    2),
                                2);
                      recorder.clear();
                      outer.closeByWindowManager();
                      EXPECT_TRUE(app.waitForEvent(request));
                  },
                  3),
              3);

    // Behind a box rings the bell.
    buildDialog();
    runWhileShown([&](Shown dialog) {
        app.whenShown("v_askbox", [&](Shown box) {
            expectRefused(dialog.shell(), box.widget());
            box.key(XK_Return);
        });
        EXPECT_EQ(guiYesNoBox("A box on the dialog?"), 1);
    });
}

GUI_TEST(DialogCloseRequest, OfTheFrameWhileADialogIsBuiltIsAnEvent)
{
    const Event toFrame = toWindow(GUI_EVENT_COMMAND, GUI_COMMAND_CLOSE);
    buildDialog();
    recorder.clear();
    wm::close(app.shell());
    EXPECT_TRUE(app.waitForEvent(toFrame));
    EXPECT_THAT(recorder.events(), ElementsAre(toFrame));
    EXPECT_TRUE(board());
}
