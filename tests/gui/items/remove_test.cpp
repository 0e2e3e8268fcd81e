// Removing items, and everything.

#include <Xm/Text.h>

#include <climits>

#include "items_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

// Puts the cursor on an item of four, removes one, and tells where the cursor is then.
int cursorAfterRemoval(int id, int cursor, int removed)
{
    replaceItems(id, {"a", "b", "c", "d"});
    guiClrAll(id);
    guiSetSel(id, cursor);
    EXPECT_EQ(guiGetSel(id), cursor);
    guiRemoveItem(id, removed);
    return guiGetSel(id);
}

}  // namespace

GUI_TEST(RemoveItem, MovesTheCursorOfAList)
{
    struct {
        int cursor, removed, after;
    } const rows[] = {
        {1, 0, 0}, {2, 0, 1}, {2, 1, 1}, {3, 0, 2},             // one before it
        {0, 0, 0}, {1, 1, 1}, {2, 2, 2},                        // itself
        {0, 1, 0}, {0, 3, 0}, {1, 2, 1}, {1, 3, 1}, {2, 3, 2},  // one behind it
        {3, 3, 2}, {3, 1, 2},                                   // from the last one
    };
    withItemControls([&] {
        for (const int id : kLists)
            for (const auto& row : rows) {
                SCOPED_TRACE(std::to_string(id) + ": " + std::to_string(row.cursor) + " without " +
                             std::to_string(row.removed));
                EXPECT_EQ(cursorAfterRemoval(id, row.cursor, row.removed), row.after);
                if (id == kBrowseList)
                    EXPECT_THAT(selectedIn(id), ElementsAre(row.after));
                else if (row.cursor == row.removed)
                    EXPECT_THAT(selectedIn(id), IsEmpty());
                else
                    EXPECT_THAT(selectedIn(id),
                                ElementsAre(row.cursor - (row.removed < row.cursor ? 1 : 0)));
            }
    });
}

GUI_TEST(RemoveItem, TheOnlyOneLeavesAnEmptyControl)
{
    withItemControls([] {
        for (const int id : kWithItems) {
            SCOPED_TRACE(id);
            append(id, {"only"});
            guiRemoveItem(id, 0);
            EXPECT_THAT(itemsOf(id), IsEmpty());
            EXPECT_THAT(selectedIn(id), IsEmpty());
            guiRemoveItem(id, 0);
            guiRemoveItem(id, -1);
            append(id, {"again"});
            EXPECT_THAT(itemsOf(id), ElementsAre("again"));
        }
    });
}

GUI_TEST(RemoveItem, OfNoItemDoesNothingQuietly)
{
    withItemControls([] {
        for (const int id : kWithItems) {
            append(id, {"a", "b"});
            for (const int index : {INT_MIN, -2, 2, 99, INT_MAX}) {
                SCOPED_TRACE(std::to_string(id) + ' ' + std::to_string(index));
                EXPECT_THAT(errorsDuring([&] { guiRemoveItem(id, index); }), IsEmpty());
                EXPECT_THAT(itemsOf(id), ElementsAre("a", "b"));
            }
        }
        for (const int id : kLists) {
            guiRemoveItem(id, -1);
            EXPECT_EQ(guiGetItemCount(id), 2) << id;
        }
    });
}

GUI_TEST(RemoveItem, OfADropDownSelectsAnother)
{
    withItemControls([] {
        for (const int id : kDropDowns) {
            SCOPED_TRACE(id);
            append(id, {"a", "b", "c", "d"});
            guiSetSel(id, 1);
            guiRemoveItem(id, 1);  // the next one
            EXPECT_EQ(guiGetSel(id), 1);
            EXPECT_EQ(fieldTextOf(id), "c");
            guiRemoveItem(id, 0);  // another one
            EXPECT_EQ(guiGetSel(id), 0);
            EXPECT_EQ(fieldTextOf(id), "c");
            guiSetSel(id, 1);
            guiRemoveItem(id, -1);  // the last one
            EXPECT_THAT(itemsOf(id), ElementsAre("c"));
            EXPECT_EQ(fieldTextOf(id), "c");
            guiRemoveItem(id, 0);
            EXPECT_EQ(fieldTextOf(id), "");
        }
    });
}

GUI_TEST(RemoveItem, OfAComboLeavesATypedText)
{
    withItemControls([](Shown) {
        append(Combo, {"a", "b", "c"});
        guiSetText(Combo, "typed");
        guiRemoveItem(Combo, 0);
        EXPECT_EQ(fieldTextOf(Combo), "typed");
        guiRemoveItem(Combo, 0);
        guiRemoveItem(Combo, 0);
        EXPECT_EQ(fieldTextOf(Combo), "") << "no items, no text";
    });
}

GUI_TEST(RemoveAll, EmptiesWhatHasItems)
{
    withItemControls([] {
        for (const int id : kWithItems) {
            SCOPED_TRACE(id);
            append(id, {"a", "b", "c"});
            guiSetSel(id, 1);
            guiRemoveAll(id);
            guiRemoveAll(id);
            EXPECT_THAT(itemsOf(id), IsEmpty());
            EXPECT_EQ(guiGetItemCount(id), 0);
            EXPECT_EQ(item(id, 0), "-1");
        }
        for (const int id : kDropDowns) EXPECT_EQ(fieldTextOf(id), "") << id;
        for (const int id : kLists) EXPECT_EQ(guiGetSel(id), -1) << id;
    });
}

GUI_TEST(RemoveAll, EmptiesTexts)
{
    withItemControls([] {
        for (const int id : {int{Edit}, int{MultiLine}}) {
            guiSetText(id, "text");
            guiRemoveAll(id);
            EXPECT_EQ(textOf(innerOf(id)), "") << id;
        }
        EXPECT_EQ(guiGetLineCount(MultiLine), 0);
        EXPECT_EQ(line(MultiLine, -1), "");
    });
}
