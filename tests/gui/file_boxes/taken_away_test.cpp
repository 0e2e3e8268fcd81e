// File boxes that vanish while they wait: as if the user had given up.

#include "file_boxes_support.h"

#include <Xm/FileSB.h>

using namespace kite::testing;

namespace {

const std::vector<int> kFlags{1, -1};

}  // namespace

GUI_TEST(FileBoxTakenAway, DestroyedShell)
{
    for (FileAsk const ask : kBothBoxes)
        for (const int flag : kFlags) {
            const FileResult result = during(ask, {.flag = flag, .initial = "a.txt"},
                                             [](Shown box) { XtDestroyWidget(box.shell()); });
            EXPECT_EQ(result, kNothing);
            EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd"));
        }
}

GUI_TEST(FileBoxTakenAway, CloseOfTheHost)
{
    for (FileAsk const ask : kBothBoxes)
        for (const int flag : kFlags) {
            EXPECT_EQ(during(ask, {.flag = flag, .initial = "a.txt"}, [](Shown) { guiClose(0); }),
                      kNothing);
            EXPECT_TRUE(isShown(app.find("v_mainwnd")));
        }
}

GUI_TEST(FileBoxTakenAway, WithTheMessageOnIt)
{
    const FileTree tree;
    Widget box = nullptr;
    script.inOrder({script.shown("v_filebox",
                                 [&](Shown shown) {
                                     box = shown.widget();
                                     choose(shown, "a.txt");
                                 }),
                    script.shown("v_askbox", [&](Shown) { XtDestroyWidget(XtParent(box)); })});
    EXPECT_EQ(saveFile({.flag = 1}), kNothing);
    EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd"));
}

GUI_TEST(FileBoxTakenAway, DialogBehindClosedByATimer)
{
    FileResult result{-5, "?"};
    guiDialog("Dialog");
    guiButton(5, 1, 1, 10, "Browse", 0);
    recorder.onEvent(GUI_EVENT_COMMAND, 5, [&] { result = openFile({.initial = "a.txt"}); });
    app.whenShown("v_dlgbbr", [&](Shown dialog) {
        recorder.onEvent(GUI_EVENT_TIMER, [&, dialog] {
            guiTimer(0);
            guiSetTopWnd(dialog.widget());
            guiClose(4);
        });
        app.whenShown("v_filebox", [](Shown) { guiTimer(100); });
        dialog.click("Browse");
    });
    EXPECT_EQ(guiRunDialog(recorder.dialogHandler()), 4);
    EXPECT_EQ(result, kNothing);
    EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd"));
}

GUI_TEST(FileBoxTakenAway, FrameClosedByATimer)
{
    recorder.onEvent(GUI_EVENT_TIMER, [&] {
        guiSetTopWnd(findWidget("v_mainwnd"));
        guiClose(0);
    });
    EXPECT_EQ(during(openFile, {.initial = "a.txt"}, [](Shown) { guiTimer(100); }), kNothing);
    EXPECT_FALSE(guiGetTopWnd());
    EXPECT_FALSE(app.shell());
}
