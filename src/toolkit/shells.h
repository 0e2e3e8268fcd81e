// shells.h: the shell around a widget, and its close requests.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

// The nearest shell at or above the widget.
Widget shellOf(Widget widget);

// While the pointer is held on a scroll bar the keyboard is the bar's, and the toolkit sends the shells that it
// destroys a made-up key: it is not to arrive there.
void destroyShell(Widget shell);

// Reports the window manager's requests to close the shell, and nothing else happens then: what a
// close request means is for the callback to decide.
void onCloseRequest(Widget shell, XtCallbackProc callback, XtPointer data);

}  // namespace kite
