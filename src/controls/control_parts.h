// control_parts.h: the widgets of a control that show its text, beside the control itself: the toolkit does not
// hand down its colours and its font to all of them.

#pragma once

#include <vector>

#include "dialogs/control_lookup.h"

namespace kite {

inline constexpr TypeSet kDropDowns{ControlType::Choice, ControlType::Combo};

// The text field and the list that drops down, or the items of a tree; none for most.
std::vector<Widget> partsOf(const Control& control);

// The widget whose font the control is in.
Widget shownIn(const Control& control);

}  // namespace kite
