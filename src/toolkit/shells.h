// shells.h: the shell around a widget, and its close requests.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

// The nearest shell at or above the widget.
Widget shellOf(Widget widget);

// A slider or scroll bar that is being dragged, and a text in which something is being selected, have grabbed
// the keyboard. Xt would go on sending keys there when the widget is gone, first of all the one that the toolkit
// makes up for a shell that it destroys.
void destroyShell(Widget shell);

// The same for a window, or a part of one, that goes while other windows wait, one inside the other: an event of one
// of its widgets may be what they have come up in. Xt would destroy the widget when the event is over in which it
// goes, and then continue with the outer event. So it is out of use at once, and destroyed when no more event
// loops run than `loopsBefore`, those that had begun before the window's own, and that one.
void takeAway(Widget widget, int loopsBefore);

// It is destroyed, or waits for that.
bool isGoing(Widget widget);

// Reports the window manager's requests to close the shell, and nothing else happens then: what a
// close request means is for the callback to decide.
void onCloseRequest(Widget shell, XtCallbackProc callback, XtPointer data);

}  // namespace kite
