// owner.cpp: a host that has an Xt application of its own.

#include <X11/StringDefs.h>
#include <kitegui.h>

#include "frame/frame_fonts.h"
#include "frame/hover.h"
#include "frame/session.h"
#include "frame/timer.h"

namespace {

// Its application may go next, and nobody says so: no time-out may be left there.
void ownerDestroyed(Widget owner, XtPointer, XtPointer)
{
    kite::hover::cancel();
    kite::periodicTimer::stopIn(XtWidgetToApplicationContext(owner));
}

}  // namespace

void guiSetOwner(GuiWidget owner)
{
    if (!owner) return;
    kite::session::setOwner(owner);
    XtRemoveCallback(owner, XtNdestroyCallback, ownerDestroyed, nullptr);
    XtAddCallback(owner, XtNdestroyCallback, ownerDestroyed, nullptr);
    kite::frameFonts::load(kite::session::display());
}
