// Selecting and deselecting items of lists.

#include <Xm/List.h>

#include <climits>

#include "items_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

std::vector<int> storedSelection(int id, int size)
{
    std::vector<int> array(static_cast<std::size_t>(size) + 1, 77);
    const int stored = guiGetSelItems(id, array.data(), size);
    EXPECT_EQ(array.back(), 77) << "behind the array";
    array.resize(static_cast<std::size_t>(std::max(stored, 0)));
    return array;
}

}  // namespace

GUI_TEST(ListSelection, OneOrSeveral)
{
    withItemControls([] {
        for (const int id : kLists) {
            SCOPED_TRACE(id);
            append(id, {"a", "b", "c", "d"});
            guiClrAll(id);
            guiSetSel(id, 3);
            guiSetSel(id, 1);
            guiSetSel(id, 1);  // is selected already
            if (id == kBrowseList) {
                EXPECT_THAT(selectedIn(id), ElementsAre(1));
                EXPECT_EQ(guiGetSelCount(id), 1);
            } else {
                EXPECT_THAT(selectedIn(id), ElementsAre(1, 3));
                EXPECT_EQ(guiGetSelCount(id), 2);
            }
            for (const int index : {INT_MIN, -1, 4, INT_MAX}) {
                const auto before = selectedIn(id);
                guiSetSel(id, index);
                EXPECT_EQ(selectedIn(id), before) << index;
            }
        }
        EXPECT_EQ(resource<unsigned char>(innerOf(kExtendedList), XmNselectionPolicy),
                  XmEXTENDED_SELECT);
    });
}

GUI_TEST(ListSelection, StoresNoMoreThanAskedFor)
{
    withItemControls([] {
        for (const int id : kSeveralLists) {
            SCOPED_TRACE(id);
            append(id, {"a", "b", "c", "d"});
            guiClrAll(id);
            EXPECT_THAT(storedSelection(id, 3), IsEmpty());
            EXPECT_EQ(guiGetNthSel(id, 0), -1);
            for (const int index : {3, 0, 2}) guiSetSel(id, index);
            EXPECT_THAT(storedSelection(id, 1), ElementsAre(0));
            EXPECT_THAT(storedSelection(id, 2), ElementsAre(0, 2));
            EXPECT_THAT(storedSelection(id, 3), ElementsAre(0, 2, 3));
            EXPECT_THAT(storedSelection(id, 9), ElementsAre(0, 2, 3));
            for (const int n : {INT_MIN, -1, 3, INT_MAX}) EXPECT_EQ(guiGetNthSel(id, n), -1) << n;
            EXPECT_EQ(guiGetNthSel(id, 0), 0);
            EXPECT_EQ(guiGetNthSel(id, 2), 3);
        }
    });
}

GUI_TEST(ListSelection, OfABrowseListIsTheCursor)
{
    withItemControls([] {
        EXPECT_EQ(guiGetSelCount(kBrowseList), 1) << "without items too";
        EXPECT_THAT(storedSelection(kBrowseList, 5), ElementsAre(-1));
        EXPECT_EQ(guiGetNthSel(kBrowseList, 0), -1);
        append(kBrowseList, {"a", "b", "c"});
        guiSetSel(kBrowseList, 2);
        XmListDeselectAllItems(innerOf(kBrowseList));
        EXPECT_EQ(guiGetSelCount(kBrowseList), 1) << "also when none is selected";
        EXPECT_THAT(storedSelection(kBrowseList, 1), ElementsAre(2));
        EXPECT_EQ(guiGetNthSel(kBrowseList, 0), 2);
        EXPECT_EQ(guiGetNthSel(kBrowseList, 1), -1);
    });
}

GUI_TEST(ListSelection, OfAllItems)
{
    withItemControls([] {
        for (const int id : kSeveralLists) {
            SCOPED_TRACE(id);
            guiSelAll(id);
            EXPECT_THAT(selectedIn(id), IsEmpty());
            append(id, {"a", "b", "b"});
            for (int time = 0; time < 3; ++time) {  // also with some, and all, selected
                guiSelAll(id);
                EXPECT_THAT(selectedIn(id), ElementsAre(0, 1, 2));
                if (time == 1) guiClrSel(id, 1);
            }
            guiClrAll(id);
            EXPECT_THAT(selectedIn(id), IsEmpty());
        }
        EXPECT_EQ(resource<unsigned char>(innerOf(kExtendedList), XmNselectionPolicy),
                  XmEXTENDED_SELECT);
        EXPECT_MISUSE(guiSelAll(kBrowseList), "SelAll: unsuitable control type (id = 20)");
    });
}

GUI_TEST(ListSelection, IsClearedItemByItem)
{
    withItemControls([] {
        for (const int id : kSeveralLists) {
            SCOPED_TRACE(id);
            append(id, {"a", "b", "c"});
            guiSelAll(id);
            for (const int index : {INT_MIN, -1, 3, INT_MAX}) guiClrSel(id, index);
            EXPECT_THAT(selectedIn(id), ElementsAre(0, 1, 2));
            guiClrSel(id, 1);
            guiClrSel(id, 1);
            EXPECT_THAT(selectedIn(id), ElementsAre(0, 2));
        }
    });
}

GUI_TEST(ListSelection, IsNotClearedWhereOneMustBe)
{
    withItemControls([] {
        for (const int id : {kBrowseList, int{ChoiceBox}}) {
            append(id, {"a", "b"});
            guiSetSel(id, 1);
            EXPECT_THAT(errorsDuring([&] {
                            guiClrAll(id);
                            guiClrSel(id, 1);
                        }),
                        IsEmpty());
            EXPECT_THAT(selectedIn(id), ElementsAre(1)) << id;
            EXPECT_EQ(guiGetSel(id), 1) << id;
        }
    });
}

GUI_TEST(ListSelection, GivesTheCursorToTheOnlySelectedItem)
{
    withItemControls([] {
        for (const int id : kLists) {
            append(id, {"a", "b", "c"});
            guiClrAll(id);
            guiSetSel(id, 2);
            EXPECT_EQ(guiGetSel(id), 2) << id;
            EXPECT_EQ(cursorIn(id), 2) << id;
        }
    });
}

// 54 units high, at eight to a line.
GUI_TEST(ListSelection, ScrollsToTheOnlySelectedItem)
{
    withItemControls([] {
        constexpr int kVisible = 6;
        constexpr int kCount = 20;
        for (int i = 0; i < kCount; ++i) guiAppendItemInt(kBrowseList, i);
        for (int index = 0; index < kCount; ++index) {
            int top = 1;
            if (index + 1 > kVisible) top = index - kVisible / 2 + 1;
            if (kCount - kVisible < index + 1) top = kCount - kVisible + 1;
            guiSetSel(kBrowseList, index);
            EXPECT_EQ(guiGetTop(kBrowseList), top - 1) << index;
        }
    });
}
