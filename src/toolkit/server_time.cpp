#include "toolkit/server_time.h"

#include <X11/Xatom.h>

namespace kite {

Time serverTime(Display* display)
{
    XSetWindowAttributes attributes{};
    attributes.event_mask = PropertyChangeMask;
    const Window window = XCreateWindow(display, DefaultRootWindow(display), 0, 0, 1, 1, 0, 0,
                                        InputOnly, CopyFromParent, CWEventMask, &attributes);
    constexpr int kBits = 8;
    XChangeProperty(display, window, XA_WM_NAME, XA_STRING, kBits, PropModeAppend, nullptr, 0);
    XEvent event;
    XWindowEvent(display, window, PropertyChangeMask, &event);
    XDestroyWindow(display, window);
    return event.xproperty.time;
}

}  // namespace kite
