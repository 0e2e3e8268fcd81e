// first_visible.h: how far a list, multi-line text or tree is scrolled.

#pragma once

#include <X11/Intrinsic.h>

#include <optional>

#include "dialogs/control_type.h"

namespace kite {

// The first item, line or row that the control shows, counted from 0; of the widget in the scrolled
// window. A text has its first line on top while it is empty; nothing when there is no memory to count
// lines. Trees count the rows that their outline has at the moment: what is collapsed does not count.
std::optional<int> firstVisible(Widget inner, ControlType type);

}  // namespace kite
