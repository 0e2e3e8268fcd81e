// control_text.h: the text of a control, as the host reads it.

#pragma once

#include <optional>
#include <string>

#include "dialogs/control_lookup.h"

namespace kite {

// Nothing for a list in which no item has the keyboard cursor. The control's type must have a text.
std::optional<std::string> textOf(const Control& control);

}  // namespace kite
