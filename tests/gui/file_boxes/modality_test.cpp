// What goes on, and what does not, while a file box is shown.

#include "file_boxes_support.h"

#include <Xm/FileSB.h>

using namespace kite::testing;

namespace {

FileResult chooseDirectory(const FileCall& call)
{
    FileCall negative = call;
    negative.flag = -1;
    return openFile(negative);
}

const std::vector<FileAsk> kAllBoxes{openFile, saveFile, chooseDirectory};

}  // namespace

GUI_TEST(FileBoxModality, BoxIsTheTopWindow)
{
    Widget const main = app.find("v_mainwnd");
    Widget const other = app.find("v_statusbar");
    for (FileAsk const ask : kAllBoxes)
        for (Widget const top : {main, other}) {
            guiSetTopWnd(top);
            look(ask, {}, [&](Shown box) {
                EXPECT_EQ(guiGetTopWnd(), box.widget());
                EXPECT_EQ(XtParent(box.shell()), top);
            });
            EXPECT_EQ(guiGetTopWnd(), top);
        }
    guiSetTopWnd(main);
}

GUI_TEST(FileBoxModality, FrameTakesNoInput)
{
    app.shell();
    for (FileAsk const ask : kAllBoxes)
        look(ask, {}, [&](Shown box) {
            recorder.clear();
            wm::requestClose(app.shell());
            settle();
            EXPECT_TRUE(isShown(box.widget()));
            EXPECT_EQ(recorder.count(GUI_EVENT_COMMAND), 0);
        });
}

GUI_TEST(FileBoxModality, TimerGoesToTheHostCallback)
{
    for (FileAsk const ask : kAllBoxes) {
        look(ask, {}, [&](Shown) {
            recorder.clear();
            guiTimer(100);
            EXPECT_TRUE(app.waitForEvent(toHost(GUI_EVENT_TIMER)));
            EXPECT_EQ(recorder.count(toWindow(GUI_EVENT_TIMER)), 0);
            guiTimer(0);
        });
    }
}

GUI_TEST(FileBoxModality, BoxOfADialogIsAboveIt)
{
    const FileTree tree;
    FileResult result;
    Widget dialog = nullptr;
    guiDialog("Dialog");
    guiButton(5, 1, 1, 10, "Browse", 0);
    recorder.onEvent(GUI_EVENT_COMMAND, 5, [&] { result = openFile({}); });
    app.whenShown("v_dlgbbr", [&](Shown shown) {
        dialog = shown.widget();
        app.whenShown("v_filebox", [&](Shown box) {
            EXPECT_EQ(XtParent(box.shell()), dialog);
            EXPECT_EQ(guiGetTopWnd(), box.widget());
            choose(box, "a.txt");
        });
        shown.click("Browse");
        EXPECT_EQ(guiGetTopWnd(), dialog);
        guiClose(3);
    });
    EXPECT_EQ(guiRunDialog(recorder.dialogHandler()), 3);
    EXPECT_EQ(result, chosen("a.txt"));
}

// A file box from a timer while another waits: each keeps its own answer.
GUI_TEST(FileBoxModality, BoxesNest)
{
    const FileTree tree;
    FileResult inner;
    Widget outer = nullptr;
    recorder.onEvent(GUI_EVENT_TIMER, [&] {
        guiTimer(0);
        inner = saveFile({});
    });
    script.inOrder({script.shown("v_filebox",
                                 [&](Shown box) {
                                     outer = box.widget();
                                     guiTimer(100);
                                 }),
                    script.shown("v_filebox",
                                 [&](Shown box) {
                                     EXPECT_EQ(XtParent(box.shell()), outer);
                                     choose(box, "inner");
                                 }),
                    {"the inner one is answered", [&] { return guiGetTopWnd() == outer; },
                     [&] { choose(Shown{outer}, "outer"); }}});
    EXPECT_EQ(openFile({}), chosen("outer"));
    EXPECT_EQ(inner, chosen("inner"));
}
