#include "dialogs/toggle.h"

#include <Xm/ToggleB.h>

#include "dialogs/common_events.h"
#include "dialogs/control.h"
#include "dialogs/placement.h"
#include "toolkit/compound_string.h"
#include "toolkit/label_text.h"

namespace kite {

namespace {

constexpr int kRowOffset = 1;          // units that centre the indicator in its row
constexpr int kOutside = 1;            // pixels that the highlight stands outside its place
constexpr double kIndicatorGap = 1.5;  // horizontal units between indicator and label

Rect placeOf(const ToggleKind& kind, int row, int x, int width)
{
    Rect place = placed(x, topOf(row, kRowOffset), width, kind.height).grownBy(kOutside);
    place.x -= building::border();
    place.y -= building::border();
    return place;
}

}  // namespace

Widget createToggle(const ToggleKind& kind, Tag tag, int row, int x, int width, const char* text)
{
    const CompoundString label{controlLabel(text).c_str()};
    Widget const widget = createControl(
        kind.widgetName, xmToggleButtonWidgetClass, placeOf(kind, row, x, width), tag,
        XmNnavigationType, kTabStop, XmNshadowThickness, 0, XmNhighlightThickness, 1,
        XmNborderWidth, building::border(), XmNrecomputeSize, False, XmNalignment,
        XmALIGNMENT_BEGINNING, XmNindicatorOn, True, XmNvisibleWhenOff, True, XmNindicatorType,
        kind.indicator, XmNspacing, building::units().pixelsAcross(kIndicatorGap), XmNfontList,
        building::font(), XmNlabelString, label.get());
    if (!widget) return nullptr;
    reportCommonEvents(widget, tag);
    XtAddCallback(widget, XmNvalueChangedCallback, kind.changed, tag.userData());
    return widget;
}

}  // namespace kite
