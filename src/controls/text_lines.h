// text_lines.h: the lines of a multi-line text control, counted from 0.

#pragma once

#include <Xm/Xm.h>

#include <optional>

namespace kite {

// Where a line begins; the end of the text when it has fewer. Nothing when no position is to be set: after
// an error box when there is no memory, else quietly for an empty text and for a line beyond the last one
// of the frame's Output area. (That area's, not the text's own: hosts fill both with the same lines.)
std::optional<XmTextPosition> startOfLine(Widget text, int line);

}  // namespace kite
