// Adding items to lists, choices and combo boxes.

#include <climits>

#include "items_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

GUI_TEST(AddItem, AppendsBehindTheLastOne)
{
    withItemControls([] {
        for (const int id : kWithItems) {
            SCOPED_TRACE(id);
            append(id, {"b", "a", "b"});
            EXPECT_THAT(itemsOf(id), ElementsAre("b", "a", "b"));
            EXPECT_EQ(guiGetItemCount(id), 3);
        }
    });
}

GUI_TEST(AddItem, InsertsBeforeTheIndexAndElseAtTheEnd)
{
    withItemControls([] {
        for (const int id : kWithItems) {
            SCOPED_TRACE(id);
            append(id, {"a", "b"});
            guiInsertItem(id, 0, "first");
            guiInsertItem(id, 1, "second");
            guiInsertItem(id, 4, "behind");
            guiInsertItem(id, -1, "end");
            EXPECT_THAT(itemsOf(id), ElementsAre("first", "second", "a", "b", "behind", "end"));
            for (const int index : {INT_MIN, -2, 99, INT_MAX}) {
                guiInsertItem(id, index, std::to_string(index).c_str());
                EXPECT_EQ(itemsOf(id).back(), std::to_string(index));
            }
        }
    });
}

GUI_TEST(AddItem, TheFirstItemIsSelectedButForAMultipleList)
{
    withItemControls([] {
        for (const bool isAppended : {true, false})
            for (const int id : kWithItems) {
                SCOPED_TRACE(id);
                guiRemoveAll(id);
                if (isAppended)
                    guiAppendItem(id, "a");
                else
                    guiInsertItem(id, 0, "a");
                if (id == kMultipleList)
                    EXPECT_THAT(selectedIn(id), IsEmpty());
                else
                    EXPECT_THAT(selectedIn(id), ElementsAre(0));
                guiInsertItem(id, 0, "before");
                if (id != kMultipleList) {
                    EXPECT_THAT(selectedIn(id), ElementsAre(1));
                }
            }
        EXPECT_EQ(fieldTextOf(ChoiceBox), "a");
        EXPECT_EQ(fieldTextOf(Combo), "a");
    });
}

GUI_TEST(AddItem, KeepsOneThousandAndTwentyThreeBytes)
{
    const std::string most(1023, 'x');
    withItemControls([&] {
        for (const int id : kWithItems) {
            SCOPED_TRACE(id);
            append(id, {most, most + 'y'});
            guiInsertItem(id, 0, (most + "yz").c_str());
            EXPECT_THAT(itemsOf(id), ElementsAre(most, most, most));
        }
    });
}

GUI_TEST(AddItem, NullIsAnEmptyTextAndLineEndsStay)
{
    withItemControls([] {
        for (const int id : kWithItems) {
            SCOPED_TRACE(id);
            guiAppendItem(id, "two\nlines");
            guiAppendItem(id, nullptr);
            guiInsertItem(id, 0, nullptr);
            EXPECT_THAT(itemsOf(id), ElementsAre("", "two\nlines", ""));
            EXPECT_EQ(item(id, 1), "two\nlines");
            EXPECT_EQ(item(id, 0), "");
        }
    });
}

GUI_TEST(AddItem, WritesNumbers)
{
    withItemControls([] {
        for (const int id : kWithItems) {
            SCOPED_TRACE(id);
            for (const int value : {INT_MIN, 0, INT_MAX}) guiAppendItemInt(id, value);
            guiInsertItemInt(id, 1, -7);
            for (const double value : {0.00005, 0.5, 1e-9, 123456789.125})
                guiAppendItemDbl(id, value);
            guiInsertItemDbl(id, 0, -0.00001);
            EXPECT_THAT(itemsOf(id), ElementsAre("-0.00001", "-2147483648", "-7", "0", "2147483647",
                                                 "0.00005", "0.5", "1E-09", "123456789.125"));
            EXPECT_DOUBLE_EQ(guiGetItemDbl(id, 5), 0.00005);
            EXPECT_DOUBLE_EQ(guiGetItemDbl(id, 7), 1e-9);
            EXPECT_EQ(guiGetItemInt(id, 1), INT_MIN);
            EXPECT_EQ(guiGetItemInt(id, 8), 123456789);
        }
    });
}

// Its eighth in vertical units: as many rows as that, or less.
GUI_STARTUP_TEST(AddItem, DropDownListsShowTheirItemsUpToTheSetting)
{
    app.profile().setInt("ch_height", 48);
    app.run([] {
        withItemControls([] {
            for (const int id : kDropDowns) {
                SCOPED_TRACE(id);
                Widget const list = resource<Widget>(innerOf(id), XmNlist);
                const int most = resource<int>(list, XmNvisibleItemCount);
                EXPECT_GE(most, 1);
                EXPECT_LE(most, 48 / 8);
                for (int count = 1; count <= most + 2; ++count) {
                    guiAppendItemInt(id, count);
                    EXPECT_EQ(resource<int>(list, XmNvisibleItemCount), std::min(most, count));
                }
                for (int count = most + 1; count >= 0; --count) {
                    guiRemoveItem(id, 0);
                    EXPECT_EQ(resource<int>(list, XmNvisibleItemCount),
                              std::max(1, std::min(most, count)));
                }
                append(id, {"a", "b"});
                guiRemoveAll(id);
                EXPECT_EQ(resource<int>(list, XmNvisibleItemCount), 1);
            }
        });
    });
}
