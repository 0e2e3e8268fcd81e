// tree_items.h: the items of a tree, by the keys that the host has given them.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

// The first item of the key below the parent (the whole tree for null), at any depth, as they stand in the
// outline: an item below an earlier one comes before a later one beside it. Null: there is none.
Widget guitreefind(Widget container, Widget parent, int key);

// The same in the whole tree by what hosts call an item's index: its key less 1.
Widget findItemOfIndex(Widget container, int index);

// The item and everything below it, the deepest first.
void DestroyBranch(Widget container, Widget item);

// The item alone: those below it move to the top level, as the container does with them.
void destroyAlone(Widget item);

// Each item that stands at the top level now, alone.
void destroyTopLevel(Widget container);

// The only one that is selected then. An index that no item has changes nothing.
void selectTreeItem(Widget container, int index);

}  // namespace kite
