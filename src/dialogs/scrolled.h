// scrolled.h: the window with scroll bars in which lists, multi-line texts and trees stand.
//
// It is the control that operations find: it carries the tag. What stands in it is its work window.

#pragma once

#include <X11/Intrinsic.h>

#include "dialogs/control_type.h"

namespace kite {

// What differs between the three.
struct ScrolledKind {
    int shadow;            // pixels
    unsigned char policy;  // of XmNscrollingPolicy: trees do not scroll by themselves
};

// The window alone, of whole rows; null when the toolkit could not make it.
Widget createScrolled(const ScrolledKind& kind, Tag tag, int row, int rows, int x, int width);

// When the work window is there. Its scroll bars look as the dialog does, and tell the host of each of their
// movements.
void reportScrolling(Widget scrolled, Tag tag);

// A tree is only as large as its items: the rest of the window looks as it does.
void spreadBackground(Widget scrolled);

}  // namespace kite
