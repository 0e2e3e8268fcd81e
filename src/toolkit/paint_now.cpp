#include "toolkit/paint_now.h"

#include <X11/IntrinsicP.h>

namespace kite {

namespace {

XEvent exposureOf(Widget widget)
{
    XEvent event{};
    event.xexpose.type = Expose;
    event.xexpose.display = XtDisplay(widget);
    event.xexpose.window = XtWindow(widget);
    event.xexpose.width = widget->core.width;
    event.xexpose.height = widget->core.height;
    return event;
}

// Without waiting for the server.
void paintExposed(Display* display)
{
    XEvent event;
    while (XCheckMaskEvent(display, ExposureMask, &event)) XtDispatchEvent(&event);
}

}  // namespace

void paintNow(Widget widget)
{
    if (!XtIsRealized(widget)) return;  // it is painted when it is shown
    XEvent event = exposureOf(widget);
    if (const XtExposeProc paint = XtClass(widget)->core_class.expose)
        paint(widget, &event, nullptr);
    paintExposed(XtDisplay(widget));
    XFlush(XtDisplay(widget));
}

}  // namespace kite
