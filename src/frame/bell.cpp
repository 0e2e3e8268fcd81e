// bell.cpp: the display's bell.

#include <kitegui.h>

#include "frame/session.h"
#include "toolkit/held_redisplay.h"

namespace {

constexpr int kVolume = 50;  // per cent

}  // namespace

void guiBeep(void)
{
    Display* const display = kite::session::display();
    if (!display) return;
    kite::paintHeldText();
    XBell(display, kVolume);
    XFlush(display);  // heard now, also when the host computes on
}
