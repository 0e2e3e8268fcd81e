// How wide the lists of choices and combo boxes drop down.

#include "items_support.h"

using namespace kite::testing;

namespace {

int shownWidth(int id)
{
    Widget const box = outerOf(id);
    Widget const list = resource<Widget>(box, XmNlist);
    const Rect place = rectOf(box);
    Robot::instance().click(box, LeftButton, Point{place.width - 6, place.height / 2});
    EXPECT_TRUE(pumpUntil([&] { return isShown(list); }));
    settle();
    const int width = rectOf(shellOf(list)).width;
    Robot::instance().key(XK_Escape);
    EXPECT_TRUE(pumpUntil([&] { return !isShown(list); }));
    return width;
}

}  // namespace

GUI_TEST(DropDownWidth, StaysWhenItemsComeAndGo)
{
    withItemControls([] {
        for (const int id : kDropDowns) {
            SCOPED_TRACE(id);
            guiAppendItem(id, "first");
            const int width = shownWidth(id);
            std::string widths;
            append(id, {"a", "b"});
            EXPECT_EQ(shownWidth(id), width);
            guiAppendItem(id, "an item that is far wider than its box can ever be, and then some");
            EXPECT_EQ(shownWidth(id), width);
            for (int i = 0; i < 12; ++i) guiAppendItemInt(id, i);
            EXPECT_EQ(shownWidth(id), width);
            for (int i = 0; i < 14; ++i) guiRemoveItem(id, 1);
            EXPECT_EQ(shownWidth(id), width);
        }
    });
}
