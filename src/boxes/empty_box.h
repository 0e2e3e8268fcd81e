// empty_box.h: a modal box to put widgets in, for those that the toolkit has no ready-made box for.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

// A bulletin board in a dialog shell of its own, both titled, neither shown yet. Null when the toolkit could not
// make them, and for a null parent.
Widget createEmptyBox(Widget parent, const char* shellName, const char* boxName, const char* title);

}  // namespace kite
