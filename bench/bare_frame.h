// bare_frame.h: the frame's widgets made by hand, as a host without the library would: the floor that
// start-up is measured against.

#pragma once

#include <Xm/Xm.h>

namespace bench {

struct BareFrame {
    XtAppContext application;
    Display* display;
    Widget shell;
    Widget mainWindow;
    Widget menuBar;
    Widget text;
    XmFontList menuFont;
};

BareFrame openBareFrame();
void closeBareFrame(BareFrame& frame);

// Processes events until the text has been painted and the server has done so.
void processUntilPainted(Widget text);

// Processes the events that have come, and those that come of them.
void processAll(Widget widget);

// Until a widget has been painted and everything inside it.
void processUntilAllPainted(Widget widget);

}  // namespace bench
