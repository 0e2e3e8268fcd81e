// toolkit.h: the Xt application under test.
//
// It is found by itself once the library has a top window. A program of bare widgets says
// toolkit::attach(anyWidgetOfIt).

#pragma once

#include <X11/Intrinsic.h>

namespace kite::testing::toolkit {

void attach(Widget anyWidget);

// The outermost shell, and what it belongs to; null while there is none.
Widget root();
XtAppContext context();
Display* display();

// Counts the applications that this process has had.
int generation();

// How many events of a type (KeyPress, KeyRelease, ButtonPress, ButtonRelease, or ClientMessage for
// close requests) the application has taken from its queue.
int received(int eventType);

}  // namespace kite::testing::toolkit
