// value_range.h: values of scales and spin boxes, within the range that they have.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

// The nearest value that the control has: the toolkit would take it too, and complain.
void setScaleValue(Widget scale, long value);
void setSpinPosition(Widget spin, long position);

// Limits of which the least is not below the most, or which are further apart than the toolkit can do, leave
// the control as it is. The value follows the limits.
void setScaleRange(Widget scale, int least, int most);
void setSpinRange(Widget spin, int least, int most);

}  // namespace kite
