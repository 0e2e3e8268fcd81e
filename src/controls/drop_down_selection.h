// drop_down_selection.h: which item of a choice or combo box is selected. Positions count from 0.

#pragma once

#include <Xm/Xm.h>

namespace kite {

// The selected one, and 0 also when none is: the toolkit says no more.
int selectedPosition(Widget box);

// Shows the item as the text too. A position that the box does not have changes nothing.
void selectPosition(Widget box, int position);

// No item is selected and the text is empty.
void clearSelection(Widget box);

// The text is the host's: nothing has been typed that the toolkit would report when the box is left.
void forgetTyping(Widget box);

// Adds an item at a position of the toolkit's; 0 is the end.
void insertItem(Widget box, XmString item, int toolkitPosition);

// Deletes an item at a position of the toolkit's: one that it does not have changes nothing.
void deleteItem(Widget box, int toolkitPosition);

void deleteAllItems(Widget box);

}  // namespace kite
