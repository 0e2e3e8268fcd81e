// output_text.h: the text of the Output area, as the files of this room see it.

#pragma once

#include <X11/Intrinsic.h>
#include <Xm/Xm.h>

namespace kite::output {

// Null while there is no frame, and when the text was destroyed by itself.
Widget text();

// The same for calls that do not write: what waits for longer than it should is painted.
Widget textToRead();

// Positions in the text, left before right.
struct Range {
    XmTextPosition left = 0;
    XmTextPosition right = 0;
};

// 0 and 0 when nothing is selected.
Range selection(Widget text);

// Several operations work on the selection, or on everything unless it is a piece of the text.
bool isUsable(const Range& range, XmTextPosition textLength);

}  // namespace kite::output
