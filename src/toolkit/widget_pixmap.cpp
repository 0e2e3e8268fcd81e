#include "toolkit/widget_pixmap.h"

#include <X11/StringDefs.h>

namespace kite {

namespace {

void widgetDestroyed(Widget widget, XtPointer pixmap, XtPointer)
{
    XFreePixmap(XtDisplayOfObject(widget), reinterpret_cast<Pixmap>(pixmap));
}

}  // namespace

void freeWithWidget(Widget widget, Pixmap pixmap)
{
    XtAddCallback(widget, XtNdestroyCallback, widgetDestroyed, reinterpret_cast<XtPointer>(pixmap));
}

}  // namespace kite
