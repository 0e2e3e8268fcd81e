#include "items_support.h"

#include <Xm/List.h>
#include <Xm/Text.h>
#include <Xm/TextF.h>

namespace kite::testing {

namespace {

constexpr int kLargest = 2048;

Widget listIn(int id)
{
    Widget const inner = innerOf(id);
    return XmIsList(inner) ? inner : resource<Widget>(inner, XmNlist);
}

Widget fieldIn(int id)
{
    return resource<Widget>(innerOf(id), XmNtextField);
}

std::string read(const std::function<int(char*, int)>& call)
{
    char buffer[kLargest] = "before";
    const int length = call(buffer, sizeof buffer);
    if (length < 0) return std::to_string(length) + buffer;
    EXPECT_EQ(length, static_cast<int>(std::string_view{buffer}.size()));
    return buffer;
}

}  // namespace

void buildItemControls()
{
    guiList(kBrowseList, 0, 4, 0, 60, GUI_BROWSE);
    guiList(kExtendedList, 0, 4, 70, 60, GUI_EXTENDED);
    guiList(kMultipleList, 0, 4, 140, 60, GUI_MULTIPLE);
    guiChoice(ChoiceBox, 5, 0, 60);
    guiCombo(Combo, 5, 70, 60);
    guiSpin(Spin, 5, 140, 60);
    guiText(MultiLine, 7, 4, 0, 100, 0);
    guiTree(Tree, 7, 6, 110, 100);
    guiEdit(Edit, 12, 0, 60, 0, 0);
    guiSlider(Slider, 14, 1, 0, 60);
    guiProgress(Progress, 14, 1, 70, 60);
}

void withItemControls(const std::function<void(Shown)>& body)
{
    runDialog({.build = buildItemControls, .look = body});
}

void withItemControls(const std::function<void()>& body)
{
    withItemControls([&](Shown) { body(); });
}

void append(int id, const std::vector<std::string>& items)
{
    for (const std::string& item : items) guiAppendItem(id, item.c_str());
}

void replaceItems(int id, const std::vector<std::string>& items)
{
    guiRemoveAll(id);
    append(id, items);
}

std::vector<std::string> itemsOf(int id)
{
    Widget const list = listIn(id);
    auto* const strings = resource<XmStringTable>(list, XmNitems);
    std::vector<std::string> items;
    for (int i = 0; i < resource<int>(list, XmNitemCount); ++i)
        items.push_back(toString(strings[i]));
    return items;
}

std::vector<int> selectedIn(int id)
{
    Widget const list = listIn(id);
    const int* const positions = resource<int*>(list, XmNselectedPositions);
    std::vector<int> selected;
    for (int i = 0; i < resource<int>(list, XmNselectedPositionCount); ++i)
        selected.push_back(positions[i] - 1);
    return selected;
}

int cursorIn(int id)
{
    return XmListGetKbdItemPos(listIn(id)) - 1;
}

std::string fieldTextOf(int id)
{
    return textOf(fieldIn(id));
}

void setFieldText(int id, const std::string& text)
{
    XmTextFieldSetString(fieldIn(id), const_cast<char*>(text.c_str()));
}

std::string selectionIn(Widget text)
{
    XmTextPosition first = 0;
    XmTextPosition last = 0;
    const Boolean isSelected = XmIsText(text)
                                   ? XmTextGetSelectionPosition(text, &first, &last)
                                   : XmTextFieldGetSelectionPosition(text, &first, &last);
    if (!isSelected || first == last) return "";
    return std::to_string(first) + '-' + std::to_string(last);
}

std::string item(int id, int index)
{
    return read([&](char* buffer, int size) { return guiGetItem(id, index, buffer, size); });
}

std::string text(int id)
{
    return read([&](char* buffer, int size) { return guiGetText(id, buffer, size); });
}

std::string line(int id, int number)
{
    return read([&](char* buffer, int size) { return guiGetLine(id, number, buffer, size); });
}

}  // namespace kite::testing
