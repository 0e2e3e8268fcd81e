// text_field.h: the text field of a composed control, a combo box or a spin box.

#pragma once

#include <X11/Intrinsic.h>

#include "dialogs/control_type.h"

namespace kite {

Widget fieldOf(Widget composed);

// A field to type in: it shows its insertion cursor while it has the keyboard, and notes when it is left.
void noteTyping(Widget field, Tag tag);

}  // namespace kite
