#include "toolkit/screen_point.h"

namespace kite {

Point originOnScreen(Widget widget)
{
    Position x = 0;
    Position y = 0;
    XtTranslateCoords(widget, 0, 0, &x, &y);
    return {x, y};
}

Point pointerOnScreen(Widget widget)
{
    Window root, child;
    int x, y;
    unsigned int buttons;
    Point pointer;
    // The widget may have no window yet.
    XQueryPointer(XtDisplay(widget), RootWindowOfScreen(XtScreen(widget)), &root, &child,
                  &pointer.x, &pointer.y, &x, &y, &buttons);
    return pointer;
}

}  // namespace kite
