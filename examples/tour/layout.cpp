// layout.cpp: controls that stand where their heights put them, one right below the other.

#include <array>
#include <string>

#include "dialogs.h"
#include "report.h"

namespace tour {

namespace {

enum Control { Close = GUI_CANCEL_BUTTON, Name = 1, Colour, Wide, Narrow, Locked, Hide, Where };

constexpr int kWidth = 120;  // dialog units
constexpr int kGap = 3;      // dialog units

bool isHidden = false;

// Gives each control the place below the one before.
class Column {
public:
    int next(int height)
    {
        const int top = top_;
        top_ += height + kGap;
        return top;
    }

private:
    int top_ = 0;
};

void build()
{
    Column column;
    guiDialog("Layout");
    guiUseAbsPos(1);
    guiShowAllBorders();
    guiLabel(GUI_ANONYMOUS, column.next(guiGetLabelHeight()), 0, kWidth,
             "Borders show where a text ends");
    guiEdit(Name, column.next(guiGetEditHeight()), 0, kWidth, 0, 0);
    guiChoice(Colour, column.next(guiGetChoiceHeight()), 0, kWidth);
    guiRadio(Wide, column.next(guiGetRadioHeight()), 0, 60, "&Wide");
    guiRadio(Narrow, column.next(guiGetRadioHeight()), 0, 60, "&Narrow");
    guiCheck(Locked, column.next(guiGetCheckHeight()), 0, 60, "&Locked");
    guiButton(Hide, column.next(guiGetButtonHeight()), 0, 60, "&Hide the edit", 1);
    guiLabel(Where, column.next(guiGetMaxCtrlHeight()), 0, kWidth, "");
    guiUseAbsPos(0);
    const int row = column.next(0) / guiGetDefRowStep() + 1;
    guiButton(Close, row, kWidth - 48, 48, "Close", 0);
}

void lockOrUnlock()
{
    guiEnable(Name, guiIdStatus(Name) == 0);
}

void begin()
{
    guiSetText(Name, "The edit");
    for (const char* const colour : {"Red", "Green", "Blue"}) guiAppendItem(Colour, colour);
    guiSetCheck(Locked, 1);
    lockOrUnlock();
    guiContextHelp();
    isHidden = false;
}

// What is hidden keeps its place.
void hideOrShow()
{
    isHidden = !isHidden;
    guiSetVisible(Name, !isHidden);
    guiSetText(Hide, isHidden ? "&Show the edit" : "&Hide the edit");
    guiSetDialogTitle(isHidden ? "Layout, without the edit" : "Layout");
}

void showState()
{
    guiSetText(Where, ("Colour " + std::to_string(guiGetPos(Colour)) + ", keyboard at " +
                       std::to_string(guiGetFocus()))
                          .c_str());
}

int handle(int event, int id, int, int)
{
    if (event == GUI_EVENT_INIT) begin();
    if (event == GUI_EVENT_COMMAND && id == Hide) hideOrShow();
    if (event == GUI_EVENT_COMMAND && id == Close) return guiClose(0);
    if (event == GUI_EVENT_CHECK) lockOrUnlock();
    if (event == GUI_EVENT_VALUE || event == GUI_EVENT_CHECK) showState();
    return 0;
}

}  // namespace

void showLayout()
{
    build();
    runDialog(handle);
    report("The layout was closed");
}

}  // namespace tour
