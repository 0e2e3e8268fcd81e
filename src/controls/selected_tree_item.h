// selected_tree_item.h: which item of a tree is selected.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

// The first of those that are; null when none is.
Widget selectedTreeItem(Widget container);

}  // namespace kite
