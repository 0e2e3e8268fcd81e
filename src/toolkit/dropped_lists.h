// dropped_lists.h: the lists of drop-down controls that go with their window.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

// Before the widget is destroyed, be it a window or a part of one. A list that goes while it has dropped down would stay among the windows that the
// toolkit takes for modal; and one can drop down as long as the event lasts in which it is destroyed.
void takeDownLists(Widget widget);

}  // namespace kite
