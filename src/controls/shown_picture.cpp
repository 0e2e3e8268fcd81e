#include "controls/shown_picture.h"

#include <Xm/Label.h>
#include <Xm/ToggleB.h>

#include <unordered_map>
#include <utility>

#include "toolkit/never_destroyed.h"
#include "toolkit/pixmaps.h"
#include "toolkit/resources.h"

namespace kite {

namespace {

using Pictures = std::unordered_map<Widget, Pixmap>;
Pictures& shown = neverDestroyed<Pictures>();

// The toolkit makes one when it paints the control insensitive, and leaves it to nobody.
Pixmap greyedPictureOf(Widget control)
{
    return resource<Pixmap>(control, XmNlabelInsensitivePixmap, XmUNSPECIFIED_PIXMAP);
}

void release(Widget control, Pixmap picture)
{
    if (picture != XmUNSPECIFIED_PIXMAP && picture != None) freePixmap(XtScreen(control), picture);
}

void controlDestroyed(Widget control, XtPointer, XtPointer)
{
    const auto entry = shown.extract(control);
    if (!entry) return;
    release(control, greyedPictureOf(control));
    release(control, entry.mapped());
}

// A toggle button takes its first picture for its indeterminate state as well, and would keep asking for that
// one's size.
void setPictures(Widget control, Pixmap picture)
{
    XtVaSetValues(control, XmNlabelType, XmPIXMAP, XmNlabelPixmap, picture, XmNselectPixmap,
                  picture, XmNindeterminatePixmap, picture, XmNlabelInsensitivePixmap,
                  XmUNSPECIFIED_PIXMAP, XmNselectInsensitivePixmap, XmUNSPECIFIED_PIXMAP, nullptr);
}

}  // namespace

void showPicture(Widget control, Pixmap picture)
{
    const auto [entry, isFirst] = shown.try_emplace(control, XmUNSPECIFIED_PIXMAP);
    if (isFirst) XtAddCallback(control, XmNdestroyCallback, controlDestroyed, nullptr);
    const Pixmap greyed = isFirst ? XmUNSPECIFIED_PIXMAP : greyedPictureOf(control);
    setPictures(control, picture);
    release(control, greyed);
    release(control, std::exchange(entry->second, picture));
}

}  // namespace kite
