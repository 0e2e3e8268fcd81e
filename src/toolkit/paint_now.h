// paint_now.h: shows a change at once, when the host may be busy for a while.
//
// XmUpdateDisplay does so by asking the server what is left to paint and waiting for its answer, with every
// call. A host may be far from the server and set a hundred texts: this paints without asking.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

// The widget, whose resources have just been changed, and whatever else the server has asked to be painted
// by now.
void paintNow(Widget widget);

}  // namespace kite
