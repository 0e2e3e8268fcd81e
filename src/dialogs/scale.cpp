#include "dialogs/scale.h"

#include <Xm/Xm.h>

#include "dialogs/common_events.h"
#include "dialogs/lost_release.h"

namespace kite {

unsigned char orientationOf(const ThinSize& size)
{
    return size.height > size.width ? XmVERTICAL : XmHORIZONTAL;
}

Widget barOf(Widget scale)
{
    return XtNameToWidget(scale, "Scrollbar");
}

// The bar has the keyboard, and most of the pointer.
void reportScaleEvents(Widget scale, Tag tag)
{
    reportCommonEvents(scale, tag);
    Widget const bar = barOf(scale);
    if (!bar) return;
    reportFocusGain(bar);
    reportKeys(bar, tag);
    reportHelp(bar, tag);
    reportPointer(bar, tag);
    letGoOfWhatIsHeld(bar);
}

}  // namespace kite
