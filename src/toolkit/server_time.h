// server_time.h: the time on the server's clock.

#pragma once

#include <X11/Xlib.h>

namespace kite {

// Now: costs a round trip. What is done on the host's own account has no event whose time it could carry, and
// the time of the last event may lie before what other clients have done since.
// (Given CurrentTime, the toolkit takes the first word about any property of the shell for the answer: also
// one that has been waiting.)
Time serverTime(Display* display);

}  // namespace kite
