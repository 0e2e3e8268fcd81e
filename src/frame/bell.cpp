// bell.cpp: the display's bell.

#include <kitegui.h>

#include "frame/session.h"

namespace {

constexpr int kVolume = 50;  // per cent

}  // namespace

void guiBeep(void)
{
    Display* const display = kite::session::display();
    if (!display) return;
    XBell(display, kVolume);
    XFlush(display);  // heard now, also when the host computes on
}
