// focus_leave.h: tells the host that the user has left a text field, when it can tell what for.
//
// The toolkit reports a loss of the focus before anything else, in the middle of its own work. So the
// event waits: for the control that gains the focus, or for the button that was pressed.

#pragma once

namespace kite::focusLeave {

enum class Field {
    Text,      // an edit or a multi-line text
    Composed,  // the text field of a combo box or a spin box
};

// The control has lost the focus; one that waits already is forgotten. An anonymous one does not wait.
void note(int id, Field field);

// Another control has the focus: a text field has been left. Of composed ones this is not worth an event,
// as it comes when their own parts pass the focus on.
void controlGainedFocus();

// Before the event of a control that was operated, and when a dialog goes.
void deliver();

void forget();

}  // namespace kite::focusLeave
