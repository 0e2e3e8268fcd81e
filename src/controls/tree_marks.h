// tree_marks.h: the marks with which the items of a tree are expanded and collapsed.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

// When the event is over: the toolkit leaves marks at items that have lost what was below them, which goes only
// then.
void renewMarksLater(Widget container);

}  // namespace kite
