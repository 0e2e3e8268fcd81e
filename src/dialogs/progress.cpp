// progress.cpp: a bar that the host fills.

#include <Xm/Scale.h>
#include <kitegui.h>

#include <algorithm>

#include "boxes/misuse.h"
#include "dialogs/placement.h"
#include "dialogs/scale.h"
#include "toolkit/colours.h"

namespace kite {

namespace {

constexpr double kLeast = 5;  // units, in both directions
constexpr Colour kDarkBlue{0, 0, 0x8000};

ThinSize enlarged(const ThinSize& size)
{
    return {size.top, std::max(size.width, kLeast), std::max(size.height, kLeast)};
}

}  // namespace

}  // namespace kite

using namespace kite;

// The user cannot move it, though it is a scale.
int guiProgress(int id, int row, int rows, int x, int width)
{
    if (!building::mayCreate("Progress", id, kAnonymous)) return GUI_FAILED;

    const ThinSize asked = thinSize(row, rows, width);
    if (asked.isEmpty() || asked.isPoint()) return 0;

    const Tag tag{id, ControlType::Progress};
    const ThinSize size = enlarged(asked);
    const Rect place = placed(x, size.top, static_cast<int>(size.width), size.height);
    Widget const scale =
        createControl("v_dlgprogress", xmScaleWidgetClass, place, tag, XmNnavigationType, XmNONE,
                      XmNorientation, orientationOf(size), XmNscaleWidth, asDimension(place.width),
                      XmNscaleHeight, asDimension(place.height), XmNminimum, 0, XmNmaximum, 100,
                      XmNslidingMode, XmTHERMOMETER, XmNeditable, False, XmNtraversalOn, False);
    if (!scale) return reportMisuse("progress: cannot create control %d", id);

    if (Widget const bar = barOf(scale))
        XtVaSetValues(bar, XmNtroughColor, allocateColour(bar, kDarkBlue), nullptr);
    reportScaleEvents(scale, tag);
    return building::append(id, ControlType::Progress, scale);
}
