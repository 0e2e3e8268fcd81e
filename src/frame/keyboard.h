// keyboard.h: function keys in the Output area are commands.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

void raiseFunctionKeyCommands(Widget text);

}  // namespace kite
