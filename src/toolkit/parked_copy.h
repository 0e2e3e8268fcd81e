// parked_copy.h: the copy of a text that is left in the widget's XmNuserData for whoever looks there.

#pragma once

#include <X11/Intrinsic.h>

#include "toolkit/line_starts.h"

namespace kite {

// From now on a copy goes when the text changes or is destroyed. To be said when the text is created:
// callbacks that are added later may read the text, and find no copy of before the change.
void dropParkedCopyOnChange(Widget text);

// The text as it is now, with its lines. It stands in XmNuserData until the text changes; what somebody
// else has put there is overwritten and stays his. Null: there was no memory for it.
const LineStarts* parkCopy(Widget text);

}  // namespace kite
