// bare_frame.h: the frame's widgets made by hand, as a host without the library would: the floor that
// start-up is measured against.

#pragma once

#include <X11/Intrinsic.h>

namespace bench {

struct BareFrame {
    XtAppContext application;
    Display* display;
    Widget shell;
    Widget mainWindow;
    Widget text;
};

BareFrame openBareFrame();
void closeBareFrame(BareFrame& frame);

// Processes events until the text has been painted and the server has done so.
void processUntilPainted(Widget text);

}  // namespace bench
