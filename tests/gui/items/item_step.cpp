#include "item_step.h"

#include <X11/IntrinsicP.h>
#include <X11/ObjectP.h>
#include <Xm/Container.h>
#include <Xm/IconG.h>
#include <Xm/Text.h>

#include <climits>
#include <set>

#include "items_support.h"

namespace kite::testing {

namespace {

enum class Form {
    Id,
    Number,
    Text,
    NumberAndText,
    TwoNumbersAndText,
    TwoNumbers,
    Buffer,
    NumberAndBuffer,
    Array
};

struct Described {
    Call call;
    const char* name;
    Form form;
    std::vector<int> ids;
    int weight;  // how often it comes
};

const std::vector<int> kLines = {MultiLine};
const std::vector<int> kTrees = {Tree};

std::vector<int> operator+(std::vector<int> some, const std::vector<int>& others)
{
    some.insert(some.end(), others.begin(), others.end());
    return some;
}

const std::vector<Described>& allCalls()
{
    static const std::vector<Described> calls = {
        {Call::AppendItem, "guiAppendItem", Form::Text, kWithItems, 12},
        {Call::AppendItemInt, "guiAppendItemInt", Form::Number, kWithItems, 2},
        {Call::InsertItem, "guiInsertItem", Form::NumberAndText, kWithItems, 12},
        {Call::RemoveItem, "guiRemoveItem", Form::Number, kWithItems + kTrees, 14},
        {Call::RemoveAll, "guiRemoveAll", Form::Id, kWithItems + kLines + kTrees, 1},
        {Call::FindItem, "guiFindItem", Form::NumberAndText, kLists + kTrees, 2},
        {Call::GetItem, "guiGetItem", Form::NumberAndBuffer, kWithItems + kTrees, 2},
        {Call::GetItemInt, "guiGetItemInt", Form::Number, kWithItems, 1},
        {Call::GetItemCount, "guiGetItemCount", Form::Id, kWithItems + kTrees, 1},
        {Call::GetItemLen, "guiGetItemLen", Form::Number, kWithItems, 1},
        {Call::SelAll, "guiSelAll", Form::Id, kSeveralLists + kLines, 2},
        {Call::GetSelCount, "guiGetSelCount", Form::Id, kLists, 1},
        {Call::GetSelItems, "guiGetSelItems", Form::Array, kLists, 2},
        {Call::GetNthSel, "guiGetNthSel", Form::Number, kLists, 2},
        {Call::SetSel, "guiSetSel", Form::Number, kWithItems + kLines + kTrees, 14},
        {Call::GetSel, "guiGetSel", Form::Id, kWithItems + kTrees, 2},
        {Call::ClrAll, "guiClrAll", Form::Id, kWithItems + kLines + kTrees, 1},
        {Call::ClrSel, "guiClrSel", Form::Number, kWithItems + kLines + kTrees, 4},
        {Call::MoveItemUp, "guiMoveItemUp", Form::Id, kLists, 6},
        {Call::MoveItemDown, "guiMoveItemDown", Form::Id, kLists, 6},
        {Call::SetText, "guiSetText", Form::Text, std::vector<int>{Combo} + kLines, 4},
        {Call::GetText, "guiGetText", Form::Buffer, kWithItems + kLines + kTrees, 2},
        {Call::InsertText, "guiInsertText", Form::Text, kLines, 4},
        {Call::GetLine, "guiGetLine", Form::NumberAndBuffer, kLines, 6},
        {Call::GetLineCount, "guiGetLineCount", Form::Id, kLines, 2},
        {Call::AppendLine, "guiAppendLine", Form::Text, kLines, 6},
        {Call::AppendHTML, "guiAppendHTML", Form::Text, kLines, 2},
        {Call::AddTree, "guiAddTree", Form::TwoNumbersAndText, kTrees, 40},
        {Call::NumTree, "guiNumTree", Form::Number, kTrees, 6},
        {Call::NthTree, "guiNthTree", Form::TwoNumbers, kTrees, 8},
        {Call::DelTree, "guiDelTree", Form::Number, kTrees, 6}};
    return calls;
}

const Described& described(Call call)
{
    return allCalls()[static_cast<std::size_t>(call)];
}

std::string reading(const std::function<int(char*, int)>& call, int size)
{
    std::vector<char> buffer(static_cast<std::size_t>(size) + 1, '#');
    const int result = call(buffer.data(), size);
    EXPECT_EQ(buffer.back(), '#') << "behind the buffer";
    return answerOf(result, buffer.data());
}

std::string selectedItems(const ItemStep& step)
{
    std::vector<int> array(static_cast<std::size_t>(step.b), 77);
    const int stored = guiGetSelItems(step.id, array.data(), step.b);
    array.resize(static_cast<std::size_t>(std::max(stored, 0)));
    return answerOf(stored, indexes(array));
}

bool isAlive(Widget item)
{
    return !reinterpret_cast<Object>(item)->object.being_destroyed;
}

std::string keyAndLabel(Widget item)
{
    const auto key =
        static_cast<int>(reinterpret_cast<std::intptr_t>(resource<XtPointer>(item, XmNuserData)));
    auto* const label = resource<XmString>(item, XmNlabelString);
    const std::string text = toString(label);
    XmStringFree(label);
    return std::to_string(key) + inQuotes(text);
}

std::string outlineBelow(Widget container, Widget parent)
{
    WidgetList items = nullptr;
    const int count = XmContainerGetItemChildren(container, parent, &items);
    std::string all;
    for (int i = 0; i < count; ++i) {
        if (!isAlive(items[i])) continue;
        all += keyAndLabel(items[i]);
        const std::string below = outlineBelow(container, items[i]);
        if (!below.empty()) all += "( " + below + ')';
        all += ' ';
    }
    XtFree(reinterpret_cast<char*>(items));
    return all;
}

std::string stateOfTree(Widget tree)
{
    auto* const selected = resource<WidgetList>(tree, XmNselectedObjects);
    std::string all = outlineBelow(tree, nullptr) + "selected ";
    for (unsigned i = 0; i < resource<unsigned>(tree, XmNselectedObjectCount); ++i)
        if (isAlive(selected[i])) all += keyAndLabel(selected[i]);
    XtFree(reinterpret_cast<char*>(selected));
    return all;
}

std::string stateOfItems(int id, bool isList)
{
    std::string all;
    for (const std::string& item : itemsOf(id)) all += inQuotes(item) + ' ';
    all += "selected " + indexes(selectedIn(id));
    return all + (isList ? "cursor " + std::to_string(cursorIn(id))
                         : "text " + inQuotes(fieldTextOf(id)));
}

template <typename T>
const T& oneOf(const std::vector<T>& all, std::mt19937& random)
{
    return all[random() % all.size()];
}

int someIndex(std::mt19937& random)
{
    static const std::vector<int> limits = {INT_MIN, INT_MAX, -2, 99};
    if (random() % 20 == 0) return oneOf(limits, random);
    return static_cast<int>(random() % 9) - 1;
}

// Few, so that some items have the same; some differ behind the ninth byte only.
std::string someText(int id, std::mt19937& random)
{
    static const std::vector<std::string> items = {"",    "a",         "b",          "12",
                                                   "-3x", "abcdefghi", "abcdefghij", "abcdefghiX"};
    static const std::vector<std::string> lines = {"",          "a",     "two\nlines", "\n",
                                                   "long line", "end\n", "\n\nlate"};
    const std::string& text = oneOf(id == MultiLine ? lines : items, random);
    return id == Combo && text.empty() ? "0" : text;  // see empty_item_test.cpp
}

}  // namespace

std::string answerOf(int result, const std::string& text)
{
    return std::to_string(result) + ' ' + text;
}

std::string indexes(const std::vector<int>& numbers)
{
    std::string all;
    for (const int number : numbers) all += std::to_string(number) + ' ';
    return all;
}

std::string inQuotes(const std::string& text)
{
    std::string written = "\"";
    for (const char c : text) written += c == '\n' ? std::string{"\\n"} : std::string{c};
    return written + '"';
}

std::string perform(const ItemStep& step)
{
    const char* const text = step.text.c_str();
    switch (step.call) {
    case Call::AppendItem: return guiAppendItem(step.id, text), "";
    case Call::AppendItemInt: return guiAppendItemInt(step.id, step.a), "";
    case Call::InsertItem: return guiInsertItem(step.id, step.a, text), "";
    case Call::RemoveItem: return guiRemoveItem(step.id, step.a), "";
    case Call::RemoveAll: return guiRemoveAll(step.id), "";
    case Call::FindItem: return std::to_string(guiFindItem(step.id, step.a, text));
    case Call::GetItem:
        return reading([&](char* to, int size) { return guiGetItem(step.id, step.a, to, size); },
                       step.b);
    case Call::GetItemInt: return std::to_string(guiGetItemInt(step.id, step.a));
    case Call::GetItemCount: return std::to_string(guiGetItemCount(step.id));
    case Call::GetItemLen: return std::to_string(guiGetItemLen(step.id, step.a));
    case Call::SelAll: return guiSelAll(step.id), "";
    case Call::GetSelCount: return std::to_string(guiGetSelCount(step.id));
    case Call::GetSelItems: return selectedItems(step);
    case Call::GetNthSel: return std::to_string(guiGetNthSel(step.id, step.a));
    case Call::SetSel: return guiSetSel(step.id, step.a), "";
    case Call::GetSel: return std::to_string(guiGetSel(step.id));
    case Call::ClrAll: return guiClrAll(step.id), "";
    case Call::ClrSel: return guiClrSel(step.id, step.a), "";
    case Call::MoveItemUp: return guiMoveItemUp(step.id), "";
    case Call::MoveItemDown: return guiMoveItemDown(step.id), "";
    case Call::SetText: return guiSetText(step.id, text), "";
    case Call::GetText:
        return reading([&](char* to, int size) { return guiGetText(step.id, to, size); }, step.b);
    case Call::InsertText: return guiInsertText(step.id, text), "";
    case Call::GetLine:
        return reading([&](char* to, int size) { return guiGetLine(step.id, step.a, to, size); },
                       step.b);
    case Call::GetLineCount: return std::to_string(guiGetLineCount(step.id));
    case Call::AppendLine: return guiAppendLine(step.id, text), "";
    case Call::AppendHTML: return guiAppendHTML(step.id, text), "";
    case Call::AddTree: return std::to_string(guiAddTree(step.id, step.a, step.b, text));
    case Call::NumTree: return std::to_string(guiNumTree(step.id, step.a));
    case Call::NthTree: return std::to_string(guiNthTree(step.id, step.a, step.b));
    case Call::DelTree: return guiDelTree(step.id, step.a), "";
    }
    return "";
}

std::string stateOfControl(int id)
{
    if (id == Tree) return stateOfTree(innerOf(id));
    if (id != MultiLine) return stateOfItems(id, id != ChoiceBox && id != Combo);
    return inQuotes(textOf(innerOf(id))) + " selected " + selectionIn(innerOf(id));
}

std::string asCode(const ItemStep& step)
{
    const Described& call = described(step.call);
    const std::string a = ", " + std::to_string(step.a);
    const std::string b = ", " + std::to_string(step.b);
    std::string code = std::string{call.name} + '(' + std::to_string(step.id);
    switch (call.form) {
    case Form::Id: break;
    case Form::Number: code += a; break;
    case Form::Text: code += ", " + inQuotes(step.text); break;
    case Form::NumberAndText: code += a + ", " + inQuotes(step.text); break;
    case Form::TwoNumbersAndText: code += a + b + ", " + inQuotes(step.text); break;
    case Form::TwoNumbers: code += a + b; break;
    case Form::Buffer: code += ", buffer" + b; break;
    case Form::NumberAndBuffer: code += a + ", buffer" + b; break;
    case Form::Array: code += ", array" + b; break;
    }
    return code + ");";
}

ItemStep randomStep(std::mt19937& random)
{
    // By control, then by weight among what it has.
    static const std::vector<int> ids = kWithItems + kLines + kTrees;
    const int id = oneOf(ids, random);
    std::vector<Call> tickets;
    for (const Described& call : allCalls())
        for (const int one : call.ids)
            if (one == id)
                tickets.insert(tickets.end(), static_cast<std::size_t>(call.weight), call.call);
    ItemStep step{oneOf(tickets, random), id, someIndex(random), someIndex(random),
                  someText(id, random)};
    static const std::vector<int> sizes = {2, 3, 4, 11, 1024};
    const Form form = described(step.call).form;
    if (form == Form::Buffer || form == Form::NumberAndBuffer) step.b = oneOf(sizes, random);
    if (form == Form::Array) step.b = 1 + static_cast<int>(random() % 8);
    if (step.call != Call::AddTree) return step;
    if (step.b == 0) step.b = 1;            // the root's
    step.text += std::to_string(random());  // keys alone do not tell items apart
    return step;
}

}  // namespace kite::testing
