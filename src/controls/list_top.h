// list_top.h: scrolls a list.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

// To an item, counted from 0. As the toolkit does it: -1 is the last item, and any other item that the list does not have changes
// nothing.
void setTopItem(Widget list, int item);

}  // namespace kite
