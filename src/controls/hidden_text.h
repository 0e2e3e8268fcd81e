// hidden_text.h: edits whose text is painted in the colour of their background.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

// The toolkit paints the text of an insensitive edit in the colours of its shadow: those of a hidden one become
// the background's too, as long as it is insensitive. Before the sensitivity is changed.
void keepHidden(Widget edit, bool isSensitive);

}  // namespace kite
