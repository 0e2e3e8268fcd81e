// edited_text.h: the text of an edit or a multi-line text.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

// Emptied first, as other texts are, but painted once.
void setEditedText(Widget edited, const char* text);

}  // namespace kite
