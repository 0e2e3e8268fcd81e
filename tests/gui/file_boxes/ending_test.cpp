// How a user gives up.

#include "file_boxes_support.h"

#include <Xm/FileSB.h>

using namespace kite::testing;

namespace {

void expectNothing(const std::function<void(Shown)>& end)
{
    for (FileAsk const ask : kBothBoxes)
        for (const int flag : {0, 1, -1}) {
            const FileResult result = during(ask, {.flag = flag, .initial = "a.txt"}, end);
            EXPECT_EQ(result, kNothing) << "and the buffer is empty";
            EXPECT_FALSE(findWidget("v_filebox"));
            EXPECT_EQ(guiGetTopWnd(), findWidget("v_mainwnd"));
        }
}

}  // namespace

GUI_TEST(FileBoxEnding, Cancel)
{
    expectNothing([](Shown box) { box.click("Cancel"); });
}

GUI_TEST(FileBoxEnding, Escape)
{
    expectNothing([](Shown box) { box.key(XK_Escape); });
}

GUI_TEST(FileBoxEnding, WindowManager)
{
    expectNothing([](Shown box) { box.closeByWindowManager(); });
}

GUI_TEST(FileBoxEnding, RaisesNoEvent)
{
    recorder.clear();
    expectNothing([](Shown box) { box.closeByWindowManager(); });
    EXPECT_EQ(recorder.count(GUI_EVENT_COMMAND), 0);
}
