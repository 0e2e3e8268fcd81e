// measurements.cpp: a list of numbers, which the user fills, and what is computed of them.

#include <algorithm>
#include <array>
#include <string>

#include "dialogs.h"
#include "report.h"

namespace tour {

namespace {

enum Control {
    Close = GUI_CANCEL_BUTTON,
    Values = 1,
    Value,
    Append,
    Insert,
    Remove,
    Empty,
    Mean,
    Longest
};

constexpr int kRight = 92;  // dialog units
constexpr int kButtonWidth = 60;
constexpr int kMostSelected = 100;

void build()
{
    guiDialog("Measurements");
    guiList(Values, 0, 8, 0, 84, GUI_MULTIPLE);
    guiEdit(Value, 0, kRight, kButtonWidth, 0, 0);
    guiButton(Append, 1, kRight, kButtonWidth, "&Append", 1);
    guiButton(Insert, 2, kRight, kButtonWidth, "Insert at &top", 0);
    guiButton(Remove, 3, kRight, kButtonWidth, "&Remove one", 0);
    guiButton(Empty, 4, kRight, kButtonWidth, "&Empty", 0);
    guiLabel(Mean, 6, kRight, kButtonWidth, "");
    guiLabel(Longest, 7, kRight, kButtonWidth, "");
    guiButton(Close, 9, kRight, kButtonWidth, "Close", 0);
}

// Of the selected ones, else of all.
double mean()
{
    std::array<int, kMostSelected> selected{};
    const int count = guiGetSelItems(Values, selected.data(), kMostSelected);
    const int all = guiGetItemCount(Values);
    double sum = 0;
    for (int n = 0; n < (count > 0 ? count : all); ++n)
        sum += guiGetItemDbl(Values, count > 0 ? selected[static_cast<std::size_t>(n)] : n);
    return all > 0 ? sum / (count > 0 ? count : all) : 0;
}

int longest()
{
    int longest = 0;
    for (int n = 0; n < guiGetItemCount(Values); ++n)
        longest = std::max(longest, guiGetItemLen(Values, n));
    return longest;
}

void showResults()
{
    guiSetTextDbl(Mean, mean());
    guiSetText(Longest, (std::to_string(longest()) + " characters").c_str());
}

void begin()
{
    for (const double value : {20.5, 21.25, 19.75}) guiAppendItemDbl(Values, value);
    guiAppendItemInt(Values, 22);
    guiInsertItemInt(Values, 0, 18);
    guiInsertItem(Values, 1, "18.5");
    guiSetTextDbl(Value, 23.5);
    guiSetFocus(Value);
    showResults();
}

// A value stands in the list once.
void append()
{
    std::array<char, 64> text{};
    guiGetText(Value, text.data(), static_cast<int>(text.size()));
    const int known = guiFindItem(Values, -1, text.data());
    if (known >= 0) return guiSetTop(Values, known);
    guiAppendItemDbl(Values, guiGetTextDbl(Value));
    guiSetTop(Values, -1);
}

void remove()
{
    const int first = guiGetNthSel(Values, 0);
    const int item = first >= 0 ? first : guiGetTop(Values);
    std::array<char, 64> text{};
    if (guiGetItem(Values, item, text.data(), static_cast<int>(text.size())) < 0) return;
    guiClrSel(Values, item);
    guiRemoveItem(Values, item);
    guiSetText(Value, text.data());
}

void press(int button)
{
    switch (button) {
    case Append: append(); break;
    case Insert: guiInsertItemDbl(Values, 0, guiGetTextDbl(Value)); break;
    case Remove: remove(); break;
    case Empty: guiRemoveAll(Values); break;
    default: guiClose(guiGetItemInt(Values, 0)); return;
    }
    showResults();
}

int handle(int event, int id, int, int)
{
    if (event == GUI_EVENT_INIT) begin();
    if (event == GUI_EVENT_SELECT) showResults();
    if (event == GUI_EVENT_COMMAND) press(id);
    return 0;
}

}  // namespace

void showMeasurements()
{
    build();
    report("The first measurement was", runDialog(handle));
}

}  // namespace tour
