// click_focus.h: controls that take the keyboard when they are clicked, and at no other time.
//
// The toolkit has no such thing: whatever it can give the keyboard to it also offers to the Tab key, and makes
// the first of a dialog in which there is nothing else.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

// The control has been made without XmNtraversalOn.
void takeFocusByClick(Widget control);

}  // namespace kite
