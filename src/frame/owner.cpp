// owner.cpp: a host that has an Xt application of its own.

#include <X11/StringDefs.h>
#include <kitegui.h>

#include "frame/frame_fonts.h"
#include "frame/hover.h"
#include "frame/session.h"
#include "frame/timer.h"

namespace {

// Its display and application may go next, and nobody says so: nothing may be left there.
void ownerDestroyed(Widget owner, XtPointer, XtPointer)
{
    Display* const display = XtDisplayOfObject(owner);
    if (display != kite::session::ownDisplay()) kite::frameFonts::forget(display);
    kite::hover::cancel();
    kite::periodicTimer::stopIn(XtWidgetToApplicationContext(owner));
}

}  // namespace

void guiSetOwner(GuiWidget owner)
{
    if (!owner) return;
    if (Widget const previous = kite::session::owner())
        XtRemoveCallback(previous, XtNdestroyCallback, ownerDestroyed, nullptr);
    kite::session::setOwner(owner);
    XtAddCallback(owner, XtNdestroyCallback, ownerDestroyed, nullptr);
    kite::frameFonts::load(kite::session::display());
}
