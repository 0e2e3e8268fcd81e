#include "toolkit/screen_pen.h"

#include <map>

#include "toolkit/display_closing.h"
#include "toolkit/never_destroyed.h"

namespace kite {

namespace {

using Pens = std::map<Screen*, GC>;
Pens& pens = neverDestroyed<Pens>();

void displayCloses(Display* display)
{
    std::erase_if(pens, [display](const auto& entry) {
        const bool isItsOwn = DisplayOfScreen(entry.first) == display;
        if (isItsOwn) XFreeGC(display, entry.second);
        return isItsOwn;
    });
}

GC createPen(Screen* screen)
{
    callBeforeClosing(DisplayOfScreen(screen), displayCloses);
    XGCValues values{};
    values.graphics_exposures = False;
    return XCreateGC(DisplayOfScreen(screen), RootWindowOfScreen(screen), GCGraphicsExposures,
                     &values);
}

}  // namespace

GC screenPen(Screen* screen, unsigned long foreground)
{
    GC& pen = pens[screen];
    if (!pen) pen = createPen(screen);
    XSetForeground(DisplayOfScreen(screen), pen, foreground);
    return pen;
}

}  // namespace kite
