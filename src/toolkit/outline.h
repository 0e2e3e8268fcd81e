// outline.h: the items of a Motif container in outline layout.
//
// Hosts fill trees of thousands of items and search them for each. So these read what the container keeps,
// as its own functions would copy a list of children for every item that is passed.

#pragma once

#include <X11/Intrinsic.h>

namespace kite::outline {

// The items directly below an item, or with null those of the top level, in the order in which they stand.
// Null: there is none, or no further one.
Widget firstChild(Widget container, Widget parent);
Widget nextSibling(Widget item);

// The integer that an item carries in its XmNuserData.
int keyOf(Widget item);

// The key less 1, as hosts hear of it: most number their items from 1.
int indexOf(Widget item);

// The first of the selected items; null when none is.
Widget selectedItem(Widget container);
int selectedCount(Widget container);

// How many rows the outline has above a height of the container: items below a collapsed one are none.
int rowsAbove(Widget container, int height);

}  // namespace kite::outline
