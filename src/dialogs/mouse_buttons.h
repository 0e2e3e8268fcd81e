// mouse_buttons.h: what mouse buttons do over a control, beyond operating it.

#pragma once

#include <X11/Intrinsic.h>

#include "dialogs/control_type.h"

namespace kite {

// For a control or a part of it: texts pop up the edit menu, most other controls tell the host of it, and labels,
// lines and progress bars do nothing.
void reportButtons(Widget widget, Tag control);

}  // namespace kite
