// label.cpp: a text that explains other controls.

#include <Xm/Label.h>
#include <kitegui.h>

#include "boxes/misuse.h"
#include "dialogs/common_events.h"
#include "dialogs/control.h"
#include "dialogs/layout_metrics.h"
#include "dialogs/placement.h"
#include "toolkit/compound_string.h"
#include "toolkit/label_text.h"

namespace {

constexpr int kRowOffset = 2;  // units that centre a line of text in its row

}  // namespace

using namespace kite;

int guiLabel(int id, int row, int x, int width, const char* text)
{
    if (!building::mayCreate("Label", id, kAnonymous)) return GUI_FAILED;

    const Tag tag{id, ControlType::Label};
    const int border = building::border();
    Rect place = placed(x, topOf(row, kRowOffset), width, layout::kLabelHeight);
    place.x -= border;
    place.y -= border;
    const CompoundString label{controlLabel(text).c_str()};
    Widget const widget =
        createControl("v_dlglabel", xmLabelWidgetClass, place, tag, XmNborderWidth, border,
                      XmNshadowThickness, 0, XmNhighlightThickness, 0, XmNmarginWidth, 0,
                      XmNmarginHeight, 0, XmNalignment, XmALIGNMENT_BEGINNING, XmNrecomputeSize,
                      False, XmNfontList, building::font(), XmNlabelString, label.get());
    if (!widget) return reportMisuse("Label: cannot create control %d", id);

    if (id != kAnonymous) reportPointer(widget, tag);
    return building::append(id, ControlType::Label, widget);
}
