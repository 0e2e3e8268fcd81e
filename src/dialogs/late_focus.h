// late_focus.h: the host gives the keyboard to a control while the toolkit is giving it to another.
//
// "This is no date": a handler that is told that a field was left sends the user back to it. At that moment the
// toolkit is in the middle of moving the focus, and would end with its own choice.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

// While a control gains the focus.
class FocusMoving {
public:
    FocusMoving();
    ~FocusMoving();

    FocusMoving(const FocusMoving&) = delete;
    FocusMoving& operator=(const FocusMoving&) = delete;
};

// The control has been disabled. The toolkit moves the focus on, but not while it is moving.
void leaveDisabled(Widget control);

// Moves the focus to the control, once more when the toolkit is done if it is moving right now.
void moveFocus(Widget control);

}  // namespace kite
