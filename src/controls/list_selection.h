// list_selection.h: which items of a list are selected, and which has the keyboard cursor. Indexes count
// from 0.

#pragma once

#include <X11/Intrinsic.h>

#include <span>

namespace kite {

enum class SelectionKind { One, Extended, Multiple };

SelectionKind selectionKindOf(Widget list);

// True when several items can be selected.
bool selectsSeveral(Widget list);

// As the toolkit has them: positions, from 1. Valid until the list changes.
std::span<const int> selectedPositions(Widget list);

// -1 when the list is empty.
int cursorOf(Widget list);
void setCursor(Widget list, int index);

// Selects one item, beside those that are selected where several can be. The list must have it.
void selectItem(Widget list, int index);

void selectAllItems(Widget list);

}  // namespace kite
