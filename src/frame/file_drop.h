// file_drop.h: file names dropped on the Output area.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

void acceptFileDrops(Widget text);

}  // namespace kite
