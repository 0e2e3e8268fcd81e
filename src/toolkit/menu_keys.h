// menu_keys.h: the keyboard in a menu that is shown.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

// Its items can be chosen by the arrow keys, from the first on.
void giveKeyboardToMenu(Widget menu);

}  // namespace kite
