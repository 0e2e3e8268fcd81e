// top_window.h: which of the library's windows receives events and is the parent of new boxes.

#pragma once

#include <X11/Intrinsic.h>

#include "toolkit/free_traversal.h"
#include "toolkit/widget_ref.h"

namespace kite {

// The main window of the frame; null before it is built and once it is closed.
Widget mainWindow();
void setMainWindow(Widget window);

// The main window, or the newest dialog or box; null when there is no window at all.
Widget topWindow();
void setTopWindow(Widget window);

// What a new box belongs to: the top window, else the owner that the host gave, else null.
Widget boxParent();

// Where time-outs are served: in the application of the frame, else in the owner's. Null without either.
XtAppContext servedApplication();

// The display is about to be closed: forgets a top window there.
void forgetTopWindowOf(const Display* display);

// Makes a widget the top window, which has the keyboard, and restores the previous one at the end, when that one
// still exists.
class TopWindowScope {
public:
    explicit TopWindowScope(Widget window);
    ~TopWindowScope();

    TopWindowScope(const TopWindowScope&) = delete;
    TopWindowScope& operator=(const TopWindowScope&) = delete;

private:
    FreeTraversal traversal_;
    WidgetRef previous_;
    bool hadPrevious_;
};

}  // namespace kite
