// Moving the item at the keyboard cursor of a list.

#include "items_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

GUI_TEST(MoveItem, TakesTheCursorAlong)
{
    withItemControls([] {
        for (const int id : kLists) {
            SCOPED_TRACE(id);
            append(id, {"a", "b", "c"});
            guiClrAll(id);
            guiSetSel(id, 0);
            guiMoveItemDown(id);
            EXPECT_THAT(itemsOf(id), ElementsAre("b", "a", "c"));
            EXPECT_EQ(guiGetSel(id), 1);
            EXPECT_THAT(selectedIn(id), ElementsAre(1));
            for (int time = 0; time < 3; ++time) guiMoveItemDown(id);
            EXPECT_THAT(itemsOf(id), ElementsAre("b", "c", "a"));
            for (int time = 0; time < 5; ++time) guiMoveItemUp(id);
            EXPECT_THAT(itemsOf(id), ElementsAre("a", "b", "c"));
            EXPECT_EQ(guiGetSel(id), 0);
            EXPECT_THAT(selectedIn(id), ElementsAre(0));
        }
    });
}

GUI_TEST(MoveItem, StaysUnselectedInAListOfSeveral)
{
    withItemControls([] {
        for (const int id : kSeveralLists) {
            SCOPED_TRACE(id);
            append(id, {"a", "b", "c"});
            guiClrAll(id);
            guiSetSel(id, 1);
            guiClrSel(id, 1);
            guiMoveItemUp(id);
            EXPECT_THAT(itemsOf(id), ElementsAre("b", "a", "c"));
            EXPECT_THAT(selectedIn(id), IsEmpty());
            EXPECT_EQ(guiGetSel(id), 0);
        }
    });
}

GUI_TEST(MoveItem, LeavesTheOthersSelected)
{
    withItemControls([] {
        for (const int id : kSeveralLists) {
            SCOPED_TRACE(id);
            append(id, {"a", "b", "c", "d"});
            guiSelAll(id);
            guiClrSel(id, 2);
            ASSERT_EQ(guiGetSel(id), 3);
            guiMoveItemUp(id);
            EXPECT_THAT(itemsOf(id), ElementsAre("a", "b", "d", "c"));
            EXPECT_THAT(selectedIn(id), ElementsAre(0, 1, 2));
            EXPECT_EQ(guiGetSel(id), 2);
        }
    });
}

GUI_TEST(MoveItem, NeedsTwoItems)
{
    withItemControls([] {
        for (const int id : kLists)
            for (const int count : {0, 1}) {
                if (count) guiAppendItem(id, "only");
                const auto before = itemsOf(id);
                EXPECT_THAT(errorsDuring([&] {
                                guiMoveItemDown(id);
                                guiMoveItemUp(id);
                            }),
                            IsEmpty());
                EXPECT_EQ(itemsOf(id), before) << id;
            }
    });
}

GUI_TEST(MoveItem, KeepsTheLongestTextAndItsLineEnds)
{
    const std::string longest(1023, 'x');
    withItemControls([&] {
        append(kBrowseList, {longest, "two\nlines", ""});
        guiSetSel(kBrowseList, 0);
        guiMoveItemDown(kBrowseList);
        EXPECT_THAT(itemsOf(kBrowseList), ElementsAre("two\nlines", longest, ""));
        guiSetSel(kBrowseList, 2);
        guiMoveItemUp(kBrowseList);
        guiMoveItemUp(kBrowseList);
        EXPECT_THAT(itemsOf(kBrowseList), ElementsAre("", "two\nlines", longest));
    });
}
