// popped_up.h: the lists and menus that go with their window.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

// Before the widget is destroyed, be it a window or a part of one. A drop-down list that goes while it has dropped
// down would stay among the windows that the toolkit takes for modal, and a popup menu would keep the mouse and the
// keyboard. Lists do not drop down any more either, as long as the event lasts in which the widget is destroyed.
void takeDownPopups(Widget widget);

}  // namespace kite
