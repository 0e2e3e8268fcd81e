// output_text.h: the text of the Output area, as the files of this room see it.

#pragma once

#include <X11/Intrinsic.h>

namespace kite::output {

// Null while there is no frame, and when the text was destroyed by itself.
Widget text();

// The same for calls that do not write: what waits for longer than it should is painted.
Widget textToRead();

}  // namespace kite::output
