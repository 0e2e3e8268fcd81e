// What is left of file boxes: nothing.

#include "file_boxes_support.h"

#include <Xm/FileSB.h>

#include "server_resources.h"

using namespace kite::testing;

namespace {

int widgetCount()
{
    int count = 0;
    forEachWidget(toolkit::root(), [&](Widget) { ++count; });
    return count;
}

void useEachOnce()
{
    for (FileAsk const ask : kBothBoxes)
        for (const int flag : {0, -1}) {
            look(ask, {.flag = flag}, [](Shown box) { box.click("Filter"); });
            during(ask, {.flag = flag}, [](Shown box) { choose(box, "x"); });
        }
}

}  // namespace

GUI_TEST(FileBoxLeftovers, NoneOnTheServerOrInTheProcess)
{
    const FileTree tree;
    useEachOnce();
    settle();
    const int widgets = widgetCount();
    const auto before = serverResources(toolkit::display());
    for (int round = 0; round < 3; ++round) useEachOnce();
    settle();
    EXPECT_EQ(widgetCount(), widgets);
    EXPECT_EQ(serverResources(toolkit::display()), before);
}

GUI_TEST(FileBoxLeftovers, NoPartIsListedByTheNextBox)
{
    const FileTree tree;
    look(openFile, {.flag = -1}, [](Shown) {});
    look(openFile, {},
         [](Shown box) { EXPECT_TRUE(isShown(filePart(box.widget(), XmDIALOG_LIST))); });
}
