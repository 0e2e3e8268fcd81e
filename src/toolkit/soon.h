// soon.h: something to do once the event that is being handled is over.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

// Unless the widget has gone by then.
void soon(Widget widget, void (*action)(Widget));

}  // namespace kite
