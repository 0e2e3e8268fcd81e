// insertion_cursor.h: a text widget shows its insertion cursor only while it has the keyboard focus.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

void showInsertionCursorWithFocus(Widget text);

void showInsertionCursor(Widget text);

// A text that is made insensitive is not told that it loses the focus.
void hideInsertionCursor(Widget text);

}  // namespace kite
