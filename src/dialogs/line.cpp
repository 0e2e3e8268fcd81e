// line.cpp: a line, across or down, or a rectangle.

#include <Xm/Frame.h>
#include <Xm/Separator.h>
#include <kitegui.h>

#include <optional>

#include "boxes/misuse.h"
#include "dialogs/control.h"
#include "dialogs/placement.h"
#include "dialogs/thin_place.h"

namespace kite {

namespace {

constexpr char kName[] = "v_dlgline";

Widget createLine(const Rect& place, Tag tag)
{
    if (place.height == 1)
        return createControl(kName, xmSeparatorWidgetClass, place, tag, XmNorientation,
                             XmHORIZONTAL);
    if (place.width == 1)
        return createControl(kName, xmSeparatorWidgetClass, place, tag, XmNorientation, XmVERTICAL);
    return createControl(kName, xmFrameWidgetClass, place, tag, XmNshadowType, XmSHADOW_ETCHED_IN);
}

}  // namespace

}  // namespace kite

using namespace kite;

int guiLine(int id, int row, int rows, int x, int width)
{
    if (!building::mayCreate("Line", id, kAnonymous)) return GUI_FAILED;

    const ThinSize size = thinSize(row, rows, width);
    if (size.isEmpty() || size.isPoint()) return 0;

    // One unit is one pixel here: a line is as thin as it can be, whatever the font.
    Rect place = placed(x, size.top, width, size.height);
    if (size.width == 1) place.width = 1;
    if (size.height == 1) place.height = 1;
    Widget const widget = createLine(place, {id, ControlType::Line});
    if (!widget) return reportMisuse("Line: cannot create control %d", id);

    return building::append(id, ControlType::Line, widget);
}
