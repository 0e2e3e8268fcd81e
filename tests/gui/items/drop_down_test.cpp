// The selection of choices and combo boxes.

#include <climits>

#include "items_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

GUI_TEST(DropDownSelection, CountsFromZero)
{
    withItemControls([] {
        for (const int id : kDropDowns) {
            SCOPED_TRACE(id);
            append(id, {"a", "b", "c"});
            for (const int index : {2, 0, 1, 1}) {
                guiSetSel(id, index);
                EXPECT_EQ(guiGetSel(id), index);
                EXPECT_EQ(fieldTextOf(id), item(id, index));
                EXPECT_THAT(selectedIn(id), ElementsAre(index));
            }
            for (const int index : {3, 99, INT_MAX}) guiSetSel(id, index);
            EXPECT_EQ(guiGetSel(id), 1);
        }
        guiSetSel(ChoiceBox, 2);
        EXPECT_EQ(guiGetPos(ChoiceBox), 2) << "the same number";
    });
}

GUI_TEST(DropDownSelection, IndexesBelowZeroClearIt)
{
    withItemControls([] {
        for (const int id : kDropDowns)
            for (const int index : {-1, INT_MIN}) {
                SCOPED_TRACE(id);
                replaceItems(id, {"a", "b"});
                guiSetSel(id, index);
                EXPECT_EQ(fieldTextOf(id), "");
                EXPECT_EQ(guiGetSel(id), -1);
                guiSetSel(id, 0);
                EXPECT_EQ(fieldTextOf(id), "a");
                EXPECT_EQ(guiGetSel(id), 0);
            }
    });
}

GUI_TEST(DropDownSelection, OfAComboIsClearedByBoth)
{
    withItemControls([] {
        for (const bool isAll : {true, false}) {
            replaceItems(Combo, {"a", "b"});
            guiSetSel(Combo, 1);
            if (isAll)
                guiClrAll(Combo);
            else
                guiClrSel(Combo, 77);  // whatever the index
            EXPECT_EQ(fieldTextOf(Combo), "");
            EXPECT_THAT(selectedIn(Combo), IsEmpty());
            EXPECT_EQ(resource<int>(innerOf(Combo), XmNselectedPosition), 0);
            EXPECT_EQ(guiGetSel(Combo), -1);
        }
    });
}

GUI_TEST(DropDownSelection, IsNoneForATypedText)
{
    withItemControls([](Shown dialog) {
        append(Combo, {"alpha", "beta"});
        guiSetSel(Combo, 1);
        guiSetFocus(Combo);
        dialog.type("x");
        EXPECT_NE(fieldTextOf(Combo), "beta");
        EXPECT_EQ(guiGetSel(Combo), -1);
        guiSetSel(Combo, 1);
        EXPECT_EQ(fieldTextOf(Combo), "beta") << "the same item again";
        EXPECT_EQ(guiGetSel(Combo), 1);
    });
}

GUI_TEST(DropDownSelection, IsComparedByNineBytes)
{
    withItemControls([] {
        append(Combo, {"123456789 one", "12345678"});
        setFieldText(Combo, "123456789 other");
        EXPECT_EQ(guiGetSel(Combo), 0);
        setFieldText(Combo, "12345678x");
        EXPECT_EQ(guiGetSel(Combo), -1);
        setFieldText(Combo, "123456789");
        EXPECT_EQ(guiGetSel(Combo), 0);
        setFieldText(Combo, "12345678");
        EXPECT_EQ(guiGetSel(Combo), -1) << "another item's text";
    });
}

GUI_TEST(DropDownSelection, OfNoItemsIsTheFirstWithAnEmptyText)
{
    withItemControls([] {
        for (const int id : kDropDowns) EXPECT_EQ(guiGetSel(id), 0) << id;
        setFieldText(Combo, "typed");
        EXPECT_EQ(guiGetSel(Combo), -1);
    });
}
