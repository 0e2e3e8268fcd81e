// owner.cpp: a host that has an Xt application of its own.

#include <kitegui.h>

#include "frame/frame_fonts.h"
#include "frame/hover.h"
#include "frame/session.h"
#include "frame/timer.h"

namespace {

// Nothing of ours may be left there.
void ownerGone(Display* display, XtAppContext application)
{
    if (display != kite::session::ownDisplay()) kite::frameFonts::release(display);
    kite::hover::cancel();
    kite::periodicTimer::stopIn(application);
}

}  // namespace

void guiSetOwner(GuiWidget owner)
{
    if (!owner) return;
    kite::session::setOwner(owner, ownerGone);
    kite::frameFonts::load(kite::session::display());
}
