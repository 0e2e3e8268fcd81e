#include "dialogs/drop_down.h"

#include <Xm/ComboBox.h>
#include <Xm/List.h>
#include <kitegui.h>

#include <algorithm>

#include "dialogs/common_events.h"
#include "dialogs/control.h"
#include "dialogs/layout_metrics.h"
#include "dialogs/placement.h"
#include "dialogs/text_field.h"
#include "frame/dispatcher.h"
#include "frame/focus_leave.h"
#include "frame/hover.h"
#include "frame/main_frame.h"
#include "toolkit/colours.h"
#include "toolkit/resources.h"

namespace kite {

namespace {

constexpr int kWide = 5000;  // pixels

// Of a list whose items have no height, because all of them are empty, the toolkit computes the size for ever.
constexpr int kHighlight = 2;  // pixels

// The setting is a height; a list of no items cannot be shown.
int mostItemsShown()
{
    const int height = frame::dropDownHeight() / 8;
    return std::max(1, static_cast<int>(height / building::units().vertical()));
}

void selected(Widget box, XtPointer tag, XtPointer)
{
    hover::cancel();
    const int position = resource<int>(box, XmNselectedPosition);
    focusLeave::deliver();
    raise(GUI_EVENT_VALUE, Tag{tag}.id(), position);
}

void prepareList(Widget list)
{
    XtVaSetValues(list, XmNvisibleItemCount, mostItemsShown(), XmNshadowThickness, 1,
                  XmNhighlightThickness, kHighlight, XmNforeground, blackPixel(list), XmNbackground,
                  whitePixel(list), nullptr);
    reportFocusGain(list);
}

void prepareField(Widget field, const Rect& place)
{
    XtVaSetValues(field, XmNx, asPosition(place.x), XmNheight, asDimension(place.height),
                  XmNmarginWidth, 3, XmNmarginHeight, 0, XmNshadowThickness, 0,
                  XmNhighlightThickness, 0, XmNforeground, blackPixel(field), XmNbackground,
                  whitePixel(field), XmNfontList, building::font(), XmNcursorPositionVisible, False,
                  nullptr);
}

}  // namespace

Widget createDropDown(const DropDownKind& kind, Tag tag, int row, int x, int width)
{
    const Rect place = placed(x, topOf(row), width, layout::kChoiceHeight);
    Widget const box = createControl(
        kind.widgetName, xmComboBoxWidgetClass, place, tag, XmNcomboBoxType, kind.type,
        XmNnavigationType, kTabStop, XmNshadowThickness, 1, XmNhighlightThickness, 1,
        XmNmarginWidth, 1, XmNmarginHeight, 1, XmNfontList, building::font());
    if (!box) return nullptr;
    prepareList(listOf(box));
    prepareField(fieldOf(box), place);
    XtVaSetValues(box, XmNheight, asDimension(place.height), nullptr);
    // Last, as each of these lays out the list. On the screen it is as wide as the box.
    XtVaSetValues(listOf(box), XmNwidth, kind.hasWideList ? kWide : asDimension(place.width),
                  nullptr);
    // The field has the keyboard, and lies under the pointer.
    for (Widget const part : {box, fieldOf(box)}) reportCommonEvents(part, tag);
    XtAddCallback(box, XmNselectionCallback, selected, tag.userData());
    return box;
}

Widget listOf(Widget box)
{
    return resource<Widget>(box, XmNlist);
}

void fitDropDownList(Widget box)
{
    Widget const list = listOf(box);
    const int count = std::max(1, std::min(mostItemsShown(), resource<int>(list, XmNitemCount)));
    if (count == resource<int>(list, XmNvisibleItemCount)) return;
    const auto width = resource<Dimension>(list, XmNwidth);
    XtVaSetValues(list, XmNvisibleItemCount, count, XmNwidth, width, nullptr);
}

}  // namespace kite
