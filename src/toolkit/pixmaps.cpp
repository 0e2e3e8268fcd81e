#include "toolkit/pixmaps.h"

#include <Xm/XmP.h>

namespace kite {

namespace {

void widgetDestroyed(Widget widget, XtPointer pixmap, XtPointer)
{
    freePixmap(XtScreenOfObject(widget), reinterpret_cast<Pixmap>(pixmap));
}

}  // namespace

// Of pixmaps that are not its own the toolkit forgets only the note.
void freePixmap(Screen* screen, Pixmap pixmap)
{
    XmDestroyPixmap(screen, pixmap);
    XFreePixmap(DisplayOfScreen(screen), pixmap);
}

void awaitPixmap(Screen* screen, Pixmap pixmap)
{
    XmeGetPixmapData(screen, pixmap, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                     nullptr);
}

void freeWithWidget(Widget widget, Pixmap pixmap)
{
    XtAddCallback(widget, XtNdestroyCallback, widgetDestroyed, reinterpret_cast<XtPointer>(pixmap));
}

}  // namespace kite
