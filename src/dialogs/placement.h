// placement.h: where a control stands on its dialog, from the dialog units in which hosts think.

#pragma once

#include "toolkit/rect.h"

namespace kite {

// The top of a control, in units. The host's `row` is a row of the dialog, in which the control is
// lowered by its own offset, or with absolute positions the top itself.
double topOf(int row, int offset = 0);

// The height of a control of several rows, in units: all of them without the last gap.
double heightOfRows(int rows);

// In pixels; behind the dialog's margin at the left and the top. Sizes below nothing are nothing.
Rect placed(int x, double top, int width, double height);

}  // namespace kite
