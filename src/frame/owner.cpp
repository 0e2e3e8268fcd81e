// owner.cpp: a host that has an Xt application of its own.

#include <kitegui.h>

#include "frame/frame_fonts.h"
#include "frame/session.h"

void guiSetOwner(GuiWidget owner)
{
    if (!owner) return;
    kite::session::setOwner(owner);
    kite::frameFonts::load(kite::session::display());
}
