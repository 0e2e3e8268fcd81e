// Finding and reading items.

#include <climits>
#include <cstring>

#include "items_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

GUI_TEST(GetItem, CopiesWhatFitsIntoTheBuffer)
{
    struct {
        int size;
        const char* text;
    } const rows[] = {{2, "a"}, {3, "ab"}, {5, "abcd"}, {6, "abcde"}, {7, "abcde"}};
    withItemControls([&] {
        guiAddTree(Tree, 0, 1, "abcde");
        append(kBrowseList, {"abcde"});
        append(kMultipleList, {"abcde"});
        append(ChoiceBox, {"abcde"});
        append(Combo, {"abcde"});
        for (const int id : {kBrowseList, kMultipleList, int{ChoiceBox}, int{Combo}, int{Tree}})
            for (const auto& row : rows) {
                SCOPED_TRACE(std::to_string(id) + ' ' + std::to_string(row.size));
                char buffer[10] = "#########";
                EXPECT_EQ(guiGetItem(id, 0, buffer, row.size), int(std::strlen(row.text)));
                EXPECT_STREQ(buffer, row.text);
                EXPECT_EQ(buffer[row.size], '#');
            }
    });
}

GUI_TEST(GetItem, RefusesABufferFirst)
{
    withItemControls([] {
        char buffer[4] = "xyz";
        for (const int size : {1, 0, -1, INT_MIN})
            EXPECT_MISUSE(guiGetItem(-1, 0, buffer, size), "GetItem: invalid buffer", -1);
        EXPECT_MISUSE(guiGetItem(kBrowseList, 0, nullptr, 4), "GetItem: invalid buffer", -1);
        EXPECT_STREQ(buffer, "xyz");
        int array[1] = {7};
        for (const int size : {0, -1, INT_MIN})
            EXPECT_MISUSE(guiGetSelItems(-1, array, size), "GetSelItems: invalid array", -1);
        EXPECT_MISUSE(guiGetSelItems(kBrowseList, nullptr, 1), "GetSelItems: invalid array", -1);
        EXPECT_EQ(array[0], 7);
    });
}

GUI_TEST(GetItem, OfNoItemIsAFailureWithoutAWord)
{
    withItemControls([] {
        for (const int id : kWithItems) {
            for (const int index : {-1, 0}) EXPECT_EQ(item(id, index), "-1") << id << ", empty";
            append(id, {"1", "2", "3"});
            for (const int index : {INT_MIN, -1, 3, INT_MAX}) {
                SCOPED_TRACE(std::to_string(id) + ' ' + std::to_string(index));
                EXPECT_EQ(item(id, index), "-1");
                EXPECT_EQ(guiGetItemLen(id, index), -1);
                EXPECT_EQ(guiGetItemInt(id, index), 0);
                EXPECT_EQ(guiGetItemDbl(id, index), 0.0);
            }
            EXPECT_EQ(item(id, 2), "3");
            EXPECT_EQ(guiGetItemLen(id, 2), 1);
        }
    });
}

GUI_TEST(GetItem, ReadsNumbersAsFarAsTheyAre)
{
    struct {
        const char* text;
        int whole;
        double number;
    } const rows[] = {
        {"12abc", 12, 12}, {"-3.5", -3, -3.5}, {"x", 0, 0}, {" 7", 7, 7}, {"1e3", 1, 1000}};
    withItemControls([&] {
        for (const int id : kWithItems)
            for (const auto& row : rows) {
                SCOPED_TRACE(row.text);
                guiInsertItem(id, 0, row.text);
                EXPECT_EQ(guiGetItemInt(id, 0), row.whole);
                EXPECT_DOUBLE_EQ(guiGetItemDbl(id, 0), row.number);
            }
        // Beyond the bytes that are read.
        guiAppendItem(kBrowseList, (std::string(255, ' ') + '7').c_str());
        EXPECT_EQ(guiGetItemInt(kBrowseList, guiGetItemCount(kBrowseList) - 1), 0);
        guiAppendItem(kBrowseList, (std::string(254, ' ') + "78").c_str());
        EXPECT_EQ(guiGetItemInt(kBrowseList, guiGetItemCount(kBrowseList) - 1), 7);
    });
}

GUI_TEST(GetItem, LengthIsOfTheWholeItem)
{
    withItemControls([] {
        for (const int id : kWithItems) {
            append(id, {"a", std::string(1023, 'x'), ""});
            EXPECT_EQ(guiGetItemLen(id, 0), 1) << id;
            EXPECT_EQ(guiGetItemLen(id, 1), 1023) << id;
            EXPECT_EQ(guiGetItemLen(id, 2), 0) << id;
        }
    });
}

GUI_TEST(GetItem, OfATreeIsByKeyAndAnEmptyTextForNone)
{
    withItemControls([] {
        guiAddTree(Tree, 0, 5, "five");
        guiAddTree(Tree, 5, 6, "six");
        guiAddTree(Tree, 0, INT_MAX, "most");
        EXPECT_EQ(item(Tree, 4), "five");
        EXPECT_EQ(item(Tree, 5), "six");
        EXPECT_EQ(item(Tree, INT_MAX - 1), "most");
        for (const int index : {0, 6, INT_MAX}) EXPECT_EQ(item(Tree, index), "") << index;
        for (const int index : {-1, INT_MIN}) EXPECT_EQ(item(Tree, index), "-1") << index;
    });
}

GUI_TEST(FindItem, IsTheFirstBehindTheStart)
{
    struct {
        int start;
        const char* text;
        int found;
    } const rows[] = {{-1, "a", 0},      {0, "a", 2},        {1, "a", 2},    {2, "a", -1},
                      {-1, "b", 1},      {-99, "b", 1},      {-1, "", 3},    {-1, "A", -1},
                      {INT_MIN, "a", 0}, {INT_MAX, "a", -1}, {-1, "aa", -1}, {99, "a", -1}};
    withItemControls([&] {
        for (const int id : kLists) {
            EXPECT_EQ(guiFindItem(id, -1, "a"), -1) << "in an empty list";
            append(id, {"a", "b", "a", ""});
            for (const auto& row : rows)
                EXPECT_EQ(guiFindItem(id, row.start, row.text), row.found)
                    << id << ' ' << row.start << ' ' << row.text;
            EXPECT_EQ(guiFindItem(id, -1, nullptr), -1);
        }
        for (const int start : {INT_MIN, -1, 0, INT_MAX})
            EXPECT_EQ(guiFindItem(Tree, start, "none"), 1) << "trees are not searched";
        EXPECT_EQ(guiFindItem(Tree, -1, nullptr), -1);
        EXPECT_THAT(errorsDuring([] { guiFindItem(-1, -1, nullptr); }), IsEmpty())
            << "null comes first";
    });
}

GUI_TEST(GetItemCount, OfATreeIsOfItsSelectedItems)
{
    withItemControls([] {
        guiAddTree(Tree, 0, 1, "a");
        guiAddTree(Tree, 0, 2, "b");
        EXPECT_EQ(guiGetItemCount(Tree), 0);
        guiSetSel(Tree, 1);
        EXPECT_EQ(guiGetItemCount(Tree), 1);
    });
}
