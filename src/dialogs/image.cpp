// image.cpp: a picture, which the host gives it later.

#include <Xm/ToggleB.h>
#include <kitegui.h>

#include "boxes/misuse.h"
#include "dialogs/click_focus.h"
#include "dialogs/common_events.h"
#include "dialogs/control.h"
#include "dialogs/placement.h"

namespace {

constexpr int kFrame = 2;  // pixels of shadow

// A picture is not set and cleared by clicks: its frame looks as it did.
void clicked(Widget image, XtPointer, XtPointer)
{
    XmToggleButtonSetState(image, False, False);
}

}  // namespace

using namespace kite;

// A toggle button without an indicator: it shows pictures, takes the keyboard when it is clicked, and
// says nothing when it is toggled.
int guiImage(int id, int row, int rows, int x, int width, int framed)
{
    if (!building::mayCreate("Image", id, 1)) return GUI_FAILED;

    const Tag tag{id, ControlType::Image};
    Widget const widget = createControl(
        "v_dlgimage", xmToggleButtonWidgetClass, placed(x, topOf(row), width, heightOfRows(rows)),
        tag, XmNindicatorOn, XmINDICATOR_NONE, XmNshadowThickness, framed ? kFrame : 0,
        XmNhighlightThickness, 0, XmNmarginWidth, 0, XmNmarginHeight, 0, XmNmarginLeft, 0,
        XmNmarginRight, 0, XmNmarginTop, 0, XmNmarginBottom, 0, XmNrecomputeSize, False,
        XmNlabelType, XmPIXMAP, XmNlabelPixmap, XmUNSPECIFIED_PIXMAP, XmNselectPixmap,
        XmUNSPECIFIED_PIXMAP, XmNlabelInsensitivePixmap, XmUNSPECIFIED_PIXMAP,
        XmNselectInsensitivePixmap, XmUNSPECIFIED_PIXMAP, XmNsensitive, True, XmNtraversalOn,
        False);
    if (!widget) return reportMisuse("Image: cannot create control %d", id);

    reportCommonEvents(widget, tag);
    takeFocusByClick(widget);
    XtAddCallback(widget, XmNvalueChangedCallback, clicked, nullptr);
    return building::append(id, ControlType::Image, widget);
}
