// bell.cpp: the display's bell.

#include <kitegui.h>

#include "frame/session.h"

namespace {

constexpr int kVolume = 50;  // per cent

}  // namespace

void guiBeep(void)
{
    if (Display* const display = kite::session::display()) XBell(display, kVolume);
}
