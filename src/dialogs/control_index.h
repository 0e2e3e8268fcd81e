// control_index.h: finds a control among thousands without looking at each.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

// The first child of the dialog, in the order of the children, whose tag has this id. Anonymous controls
// have none, and a child whose destruction has begun is none any more.
Widget findChildOfId(Widget dialog, int id);

}  // namespace kite
