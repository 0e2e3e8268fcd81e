// slider.cpp: a value that the user drags.

#include <Xm/Scale.h>
#include <kitegui.h>

#include "boxes/misuse.h"
#include "dialogs/placement.h"
#include "dialogs/scale.h"
#include "frame/dispatcher.h"
#include "frame/hover.h"
#include "toolkit/colours.h"
#include "toolkit/compound_string.h"

namespace kite {

namespace {

constexpr int kLeastHeight = 12;  // pixels below which it is made
constexpr int kHeight = 12;       // that high,
constexpr int kLeastWidth = 12;   // and pixels below which it is made
constexpr int kWidth = 15;        // that wide: hosts have laid out their dialogs with both

// While it is dragged, too.
void moved(Widget, XtPointer tag, XtPointer call)
{
    hover::cancel();
    raise(GUI_EVENT_VALUE, Tag{tag}.id(), static_cast<XmScaleCallbackStruct*>(call)->value);
}

Rect placeOf(int x, int width, const ThinSize& size)
{
    Rect place = placed(x, size.top, width, size.height);
    if (place.height < kLeastHeight) place.height = kHeight;
    if (place.width < kLeastWidth) place.width = kWidth;
    return place;
}

}  // namespace

}  // namespace kite

using namespace kite;

int guiSlider(int id, int row, int rows, int x, int width)
{
    if (!building::mayCreate("Slider", id, kAnonymous)) return GUI_FAILED;

    const ThinSize size = thinSize(row, rows, width);
    if (size.isEmpty()) return 0;

    const Tag tag{id, ControlType::Slider};
    const CompoundString noTitle{""};
    Widget const scale = createControl(
        "v_dlgscale", xmScaleWidgetClass, placeOf(x, width, size), tag, XmNnavigationType, kTabStop,
        XmNorientation, orientationOf(size), XmNscaleWidth, 0, XmNscaleHeight, 0, XmNmaximum, 100,
        XmNtitleString, noTitle.get(), XmNforeground, blackPixel(building::board()));
    if (!scale) return reportMisuse("Slider: cannot create control %d", id);

    reportScaleEvents(scale, tag);
    XtAddCallback(scale, XmNvalueChangedCallback, moved, tag.userData());
    XtAddCallback(scale, XmNdragCallback, moved, tag.userData());
    return building::append(id, ControlType::Slider, scale);
}
