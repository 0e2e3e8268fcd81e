// edit_popup.h: the menu that mouse button 3 pops up over a text that can be edited.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

// From now on the button pops it up over a widget, which is the text or the control that the text belongs to.
void offerEditPopup(Widget watched, Widget text);

}  // namespace kite
