// radio_group.h: the radio buttons that stand next to each other among a dialog's controls.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

// Clears the other radio buttons of the group, of which nothing is told to the host.
void clearOthersOfGroup(Widget radio);

}  // namespace kite
