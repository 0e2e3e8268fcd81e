// move_item.cpp: moves the item under the keyboard cursor of a list.

#include <kitegui.h>

#include <algorithm>

#include "controls/items.h"
#include "controls/list_selection.h"
#include "frame/dispatcher.h"

namespace kite {

namespace {

constexpr int kLongest = 1024;  // with the terminating null

bool isSelected(Widget list, int index)
{
    const auto positions = selectedPositions(list);
    return std::find(positions.begin(), positions.end(), positionOf(index)) != positions.end();
}

// Between two items that the list has.
void move(int id, Widget list, int from, int to)
{
    char text[kLongest];
    if (guiGetItem(id, from, text, sizeof text) < 0) return;
    const bool several = selectsSeveral(list);
    const bool wasSelected = !several || isSelected(list, from);
    guiRemoveItem(id, from);
    guiInsertItem(id, to, text);
    if (wasSelected) guiSetSel(id, to);
    if (!several) return;
    const EventsSuppressed quiet;
    setCursor(list, to);
}

void moveBy(const char* operation, int id, int step)
{
    const Control control = findControl(operation, id, {ControlType::List});
    if (!control) return;
    const int count = itemCount(control.widget);
    const int from = cursorOf(control.widget);
    const int to = from + step;
    if (from >= 0 && to >= 0 && to < count) move(id, control.widget, from, to);
}

}  // namespace

}  // namespace kite

void guiMoveItemUp(int id)
{
    kite::moveBy("MoveItemUp", id, -1);
}

void guiMoveItemDown(int id)
{
    kite::moveBy("MoveItemDown", id, 1);
}
