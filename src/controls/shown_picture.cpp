#include "controls/shown_picture.h"

#include <Xm/Xm.h>

#include <unordered_map>
#include <utility>

#include "toolkit/never_destroyed.h"

namespace kite {

namespace {

using Pictures = std::unordered_map<Widget, Pixmap>;
Pictures& shown = neverDestroyed<Pictures>();

void release(Widget control, Pixmap picture)
{
    if (picture != XmUNSPECIFIED_PIXMAP) freePixmap(XtScreen(control), picture);
}

void controlDestroyed(Widget control, XtPointer, XtPointer)
{
    if (const auto entry = shown.extract(control)) release(control, entry.mapped());
}

}  // namespace

void keepShownPicture(Widget control, Pixmap picture)
{
    const auto [entry, isNew] = shown.try_emplace(control, XmUNSPECIFIED_PIXMAP);
    if (isNew) XtAddCallback(control, XmNdestroyCallback, controlDestroyed, nullptr);
    release(control, std::exchange(entry->second, picture));
}

}  // namespace kite
