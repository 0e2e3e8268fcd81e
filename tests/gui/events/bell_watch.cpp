#include <gtest/gtest.h>

#include "bell_watch.h"

#include <X11/XKBlib.h>

namespace kite::testing {

BellWatch::BellWatch() : display_(XOpenDisplay(nullptr))
{
    int opcode, error, major = XkbMajorVersion, minor = XkbMinorVersion;
    if (!XkbQueryExtension(display_, &opcode, &firstEvent_, &error, &major, &minor))
        ADD_FAILURE() << "This server does not tell when the bell rings.";
    XKeyboardControl control{};
    control.bell_percent = 0;
    XChangeKeyboardControl(display_, KBBellPercent, &control);
    XkbSelectEvents(display_, XkbUseCoreKbd, XkbBellNotifyMask, XkbBellNotifyMask);
    XSync(display_, False);
}

BellWatch::~BellWatch()
{
    XCloseDisplay(display_);
}

const std::vector<int>& BellWatch::rings()
{
    XSync(display_, False);
    while (XPending(display_) > 0) {
        XkbEvent event{};
        XNextEvent(display_, &event.core);
        if (event.type == firstEvent_ && event.any.xkb_type == XkbBellNotify)
            rings_.push_back(event.bell.percent);
    }
    return rings_;
}

bool BellWatch::waitForRings(int count)
{
    return pumpUntil([&] { return static_cast<int>(rings().size()) >= count; });
}

}  // namespace kite::testing
