#include <gtest/gtest.h>

#include <kitegui.h>

#include "operation_table.h"

namespace kite::testing {

namespace {

const std::set<int> kWithItems{List, ChoiceBox, Combo};
const std::set<int> kItemReadable{List, ChoiceBox, Combo, Tree};
const std::set<int> kClearable{Edit, MultiLine, ChoiceBox, Combo, List, Tree};
const std::set<int> kSelectable{Edit, Spin, ChoiceBox, Combo, List, MultiLine, Tree};
const std::set<int> kWithSelection{ChoiceBox, Combo, List, Progress, Slider, Tree, Spin};

double getItem(int id)
{
    char buffer[16] = "before";
    const int length = guiGetItem(id, 0, buffer, sizeof buffer);
    if (length < 0) {
        EXPECT_STREQ(buffer, "") << "a failed call empties the buffer";
    }
    return length;
}

double getLine(int id)
{
    char buffer[16] = "before";
    const int length = guiGetLine(id, 0, buffer, sizeof buffer);
    if (length < 0) {
        EXPECT_STREQ(buffer, "") << "a failed call empties the buffer";
    }
    return length;
}

double getSelItems(int id)
{
    int items[4];
    return guiGetSelItems(id, items, 4);
}

}  // namespace

// guiSelAll is not for the lists here, in which one item at most is selected.
const std::vector<Operation>& itemOperations()
{
    static const std::vector<Operation> operations = {
        {"guiAppendItem", "AppendItem", kWithItems, false, 0,
         quietly([](int id) { guiAppendItem(id, "new"); })},
        {"guiAppendItemDbl", "AppendItem", kWithItems, false, 0,
         quietly([](int id) { guiAppendItemDbl(id, 0.5); })},
        {"guiAppendItemInt", "AppendItem", kWithItems, false, 0,
         quietly([](int id) { guiAppendItemInt(id, 7); })},
        {"guiInsertItem", "InsertItem", kWithItems, false, 0,
         quietly([](int id) { guiInsertItem(id, 0, "new"); })},
        {"guiInsertItemDbl", "InsertItem", kWithItems, false, 0,
         quietly([](int id) { guiInsertItemDbl(id, 0, 0.5); })},
        {"guiInsertItemInt", "InsertItem", kWithItems, false, 0,
         quietly([](int id) { guiInsertItemInt(id, 0, 7); })},
        {"guiFindItem",
         "FindItem",
         {List, Tree},
         false,
         -1,
         [](int id) { return double(guiFindItem(id, -1, "item 1")); }},
        {"guiGetItem", "GetItem", kItemReadable, false, -1, getItem},
        {"guiGetItemDbl", "GetItem", kItemReadable, false, 0,
         [](int id) { return guiGetItemDbl(id, 0); }},
        {"guiGetItemInt", "GetItem", kItemReadable, false, 0,
         [](int id) { return double(guiGetItemInt(id, 0)); }},
        {"guiGetItemCount", "GetItemCount", kItemReadable, false, -1, guiGetItemCount},
        {"guiGetItemLen", "GetItemLen", kWithItems, false, -1,
         [](int id) { return double(guiGetItemLen(id, 0)); }},
        {"guiSelAll", "SelAll", {Edit, MultiLine}, false, 0, quietly(guiSelAll)},
        {"guiGetSelCount", "GetSelCount", {List}, false, -1, guiGetSelCount},
        {"guiGetSelItems", "GetSelItems", {List}, false, -1, getSelItems},
        {"guiGetNthSel",
         "GetSelCount",
         {List},
         false,
         -1,
         [](int id) { return double(guiGetNthSel(id, 0)); }},
        {"guiSetSel", "SetSel", kSelectable, false, 0, quietly([](int id) { guiSetSel(id, 1); })},
        {"guiGetSel", "GetSel", kWithSelection, false, -1, guiGetSel},
        {"guiClrAll", "ClrAll", kAll, false, 0, quietly(guiClrAll)},
        {"guiClrSel", "ClrSel", kAll, false, 0, quietly([](int id) { guiClrSel(id, 0); })},
        {"guiMoveItemUp", "MoveItemUp", {List}, false, 0, quietly(guiMoveItemUp)},
        {"guiMoveItemDown", "MoveItemDown", {List}, false, 0, quietly(guiMoveItemDown)},
        {"guiGetLine", "GetLine", {MultiLine}, false, -1, getLine},
        {"guiGetLineCount", "GetLineCount", {MultiLine}, false, -1, guiGetLineCount},
        {"guiAppendLine", "AppendLine", {MultiLine}, false, 0, quietly([](int id) {
             guiAppendLine(id, "new");
         })},
        {"guiAppendHTML", "AppendItem", {MultiLine}, false, 0, quietly([](int id) {
             guiAppendHTML(id, "new");
         })},
        {"guiAddTree",
         "InsertTreeItem",
         {Tree},
         false,
         -1,
         [](int id) { return double(guiAddTree(id, 0, 9, "new")); },
         0},
        {"guiNumTree",
         "NumTreeItem",
         {Tree},
         false,
         -1,
         [](int id) { return double(guiNumTree(id, 0)); }},
        {"guiNthTree",
         "NumTreeItem",
         {Tree},
         false,
         -1,
         [](int id) { return double(guiNthTree(id, 0, 1)); }},
        {"guiDelTree", "DelTreeItem", {Tree}, false, 0, quietly([](int id) { guiDelTree(id, 1); })},
        {"guiRemoveItem", "RemoveItem", kItemReadable, false, 0,
         quietly([](int id) { guiRemoveItem(id, 1); })},
        {"guiRemoveAll", "RemoveAll", kClearable, false, 0, quietly(guiRemoveAll)}};
    return operations;
}

}  // namespace kite::testing
