// drop_time_out.h: keeps the end of a drop from removing somebody else's time-out.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

// For all drops on windows of the display. May be called again for the same display.
//
// Motif starts the transfer of a drop in a time-out of 0 ms and hangs a destroy callback on the drag
// context that removes it. It stays there when the time-out has long fired; by then Xt has given its
// record to the next time-out that was asked for, and the end of the drop stops that one: a timer of
// the host's, or the toolkit's own. This takes the callback away when the time-out has done its work.
void keepTimeOutsFromDrops(Display* display);

}  // namespace kite
