#include "dialogs/building.h"

#include "boxes/misuse.h"
#include "toolkit/never_destroyed.h"
#include "toolkit/widget_ref.h"

namespace kite::building {

namespace {

struct State {
    WidgetRef board;          // set by begin, cleared by forget
    bool isPrepared = false;  // raised by begin, lowered by end and forget
    XmFontList font = nullptr;
    DialogUnits units;
    bool usesAbsolutePositions = false;  // reset by begin
    bool showsBorders = false;           // reset by begin
    WidgetRef defaultButton;             // reset by begin and forget
};
State& state = neverDestroyed<State>();

// Emptied by begin and forget. Half a megabyte, of which dialogs use the beginning.
constinit ControlTable table;

constexpr bool isInvalid(int id, int lowestId)
{
    return id < lowestId || (lowestId < 0 && id == 0) || id > kLargestId;
}

}  // namespace

void begin(Widget board, XmFontList font, const FontMeasures& measures)
{
    state.board.reset(board);
    state.isPrepared = true;
    state.font = font;
    state.units = DialogUnits{measures};
    state.usesAbsolutePositions = false;
    state.showsBorders = false;
    state.defaultButton.reset();
    table.clear();
}

void end()
{
    state.isPrepared = false;
}

void forget()
{
    state.board.reset();
    state.isPrepared = false;
    state.defaultButton.reset();
    table.clear();
}

bool isPrepared()
{
    return state.isPrepared && state.board;
}

Widget board()
{
    return state.board.get();
}

XmFontList font()
{
    return state.font;
}

const DialogUnits& units()
{
    return state.units;
}

bool usesAbsolutePositions()
{
    return state.usesAbsolutePositions;
}

void useAbsolutePositions(bool isWanted)
{
    state.usesAbsolutePositions = isWanted;
}

int border()
{
    return state.showsBorders ? 1 : 0;
}

void showBorders()
{
    state.showsBorders = true;
}

Widget defaultButton()
{
    return state.defaultButton.get();
}

void setDefaultButton(Widget button)
{
    state.defaultButton.reset(button);
}

bool mayCreate(const char* control, int id, int lowestId)
{
    const auto refuse = [](int) { return false; };
    if (!isPrepared()) return refuse(reportMisuse("%s: no dialog is built at the moment", control));
    if (table.isFull()) return refuse(reportMisuse("%s: too many dialog items", control));
    if (isInvalid(id, lowestId))
        return refuse(reportMisuse("%s: invalid control id %d", control, id));
    if (table.has(id)) return refuse(reportMisuse("%s: duplicate control id %d", control, id));
    return true;
}

int append(int id, ControlType type, Widget widget)
{
    table.add({id, type, widget});
    return 0;
}

ControlTable& controls()
{
    return table;
}

}  // namespace kite::building
