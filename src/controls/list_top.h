// list_top.h: the first item that a list shows, counted from 0.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

int topItemOf(Widget list);

// As the toolkit does it: -1 is the last item, and any other item that the list does not have changes
// nothing.
void setTopItem(Widget list, int item);

}  // namespace kite
