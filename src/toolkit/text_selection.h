// text_selection.h: what is selected in a text widget.

#pragma once

#include <Xm/Xm.h>

namespace kite {

// Positions in a text, left before right.
struct TextRange {
    XmTextPosition left = 0;
    XmTextPosition right = 0;
};

// 0 and 0 when nothing is selected.
TextRange selectionOf(Widget text);

// Several operations work on the selection, or on everything unless it is a piece of the text.
bool hasUsableSelection(Widget text);

// Removes the selection, or everything unless it is usable.
void clearSelectionOrAll(Widget text);

}  // namespace kite
