// free_traversal.h: the keyboard can be moved in a window that is opened while it moves in another one.

#pragma once

#include <X11/Intrinsic.h>

#include "toolkit/widget_ref.h"

namespace kite {

// The toolkit moves the keyboard once at a time on a display, and refuses what callbacks of such a move ask for. A
// window that a handler opens there, and waits for, would have no keyboard at all.
class FreeTraversal {
public:
    explicit FreeTraversal(Widget widget);
    ~FreeTraversal();

    FreeTraversal(const FreeTraversal&) = delete;
    FreeTraversal& operator=(const FreeTraversal&) = delete;

private:
    WidgetRef toolkitDisplay_;
    bool wasMoving_ = false;
};

}  // namespace kite
