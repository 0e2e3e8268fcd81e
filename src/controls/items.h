// items.h: the items of lists, choices and combo boxes.

#pragma once

#include <Xm/Xm.h>

#include <optional>
#include <string>

#include "dialogs/control_lookup.h"

namespace kite {

inline constexpr TypeSet kWithItems{ControlType::List, ControlType::Choice, ControlType::Combo};

// The list that holds them: for choices and combo boxes the one that drops down.
Widget listOf(const Control& control);

int itemCount(Widget list);

// Indexes count from 0; null and nothing for an index that the list does not have.
XmString itemAt(Widget list, int index);
std::optional<std::string> itemText(Widget list, int index);

// What an item keeps of a host's text: 1023 bytes of it; empty for null.
std::string itemTextOf(const char* text);

// The toolkit counts positions from 1, and 0 is the last item, or behind it. What no position can be is
// one that no list has.
int positionOf(int index);

}  // namespace kite
