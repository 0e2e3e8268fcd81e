// special_keys.h: the keys that hosts hear of, by the kind of control in which they are pressed.

#pragma once

#include <X11/Xlib.h>

#include <optional>

#include "dialogs/control_type.h"

namespace kite {

// The code of GUI_EVENT_KEY; nothing for a key that is the control's own business.
std::optional<int> specialKeyCode(KeySym symbol, ControlType type);

}  // namespace kite
