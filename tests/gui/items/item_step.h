// item_step.h: a call of one operation on a real control, as a value: it can be made up, done and printed.

#pragma once

#include <random>
#include <string>
#include <vector>

namespace kite::testing {

enum class Call {
    AppendItem,
    AppendItemInt,
    InsertItem,
    RemoveItem,
    RemoveAll,
    FindItem,
    GetItem,
    GetItemInt,
    GetItemCount,
    GetItemLen,
    SelAll,
    GetSelCount,
    GetSelItems,
    GetNthSel,
    SetSel,
    GetSel,
    ClrAll,
    ClrSel,
    MoveItemUp,
    MoveItemDown,
    SetText,
    GetText,
    InsertText,
    GetLine,
    GetLineCount,
    AppendLine,
    AppendHTML,
    AddTree,
    NumTree,
    NthTree,
    DelTree
};

struct ItemStep {
    Call call{};
    int id = 0;
    int a = 0;         // index, key or line
    int b = 0;         // the second number: size of a buffer, n, or key
    std::string text;  // with a first byte of 1: null
};

// What the call returned, with what it has put into a buffer: "3 abc". Nothing where it returns nothing.
std::string perform(const ItemStep& step);

// Everything that the control holds now: items, what is selected, cursor, text.
std::string stateOfControl(int id);

// "guiInsertItem(20, 1, \"abc\");"
std::string asCode(const ItemStep& step);

// One that the control has, with arguments at and around what it has to hold.
ItemStep randomStep(std::mt19937& random);

// How answers are written.
std::string answerOf(int result, const std::string& text);
std::string indexes(const std::vector<int>& numbers);
std::string inQuotes(const std::string& text);

}  // namespace kite::testing
