// button.cpp: a push button.

#include <Xm/PushB.h>
#include <kitegui.h>

#include "boxes/misuse.h"
#include "dialogs/common_events.h"
#include "dialogs/control.h"
#include "dialogs/layout_metrics.h"
#include "dialogs/placement.h"
#include "frame/dispatcher.h"
#include "frame/focus_leave.h"
#include "frame/hover.h"
#include "toolkit/compound_string.h"
#include "toolkit/label_text.h"

namespace kite {

namespace {

constexpr int kOutside = 1;  // pixels that the button's edge stands outside its place

// The handler of either event may destroy the button.
void pressed(Widget, XtPointer tag, XtPointer)
{
    hover::cancel();
    focusLeave::deliver();
    raise(GUI_EVENT_COMMAND, Tag{tag}.id());
}

}  // namespace

}  // namespace kite

using namespace kite;

int guiButton(int id, int row, int x, int width, const char* text, int isDefault)
{
    if (!building::mayCreate("Button", id, 0)) return GUI_FAILED;

    const Tag tag{id, ControlType::Button};
    const Rect place = placed(x, topOf(row), width, layout::kButtonHeight).grownBy(kOutside);
    const CompoundString label{controlLabel(text).c_str()};
    // A button of no width is there for the Return or Escape key alone.
    const bool isVisible = width != 0;
    Widget const widget = createControl(
        "v_dlgbutton", xmPushButtonWidgetClass, place, tag, XmNmappedWhenManaged, isVisible,
        XmNnavigationType, isVisible ? kTabStop : XmNONE, XmNshadowThickness, 2,
        XmNhighlightThickness, 1, XmNalignment, XmALIGNMENT_CENTER, XmNrecomputeSize, False,
        XmNfontList, building::font(), XmNlabelString, label.get());
    if (!widget) return reportMisuse("Button: cannot create control %d", id);

    reportCommonEvents(widget, tag);
    XtAddCallback(widget, XmNactivateCallback, pressed, tag.userData());
    if (isDefault) building::setDefaultButton(widget);
    return building::append(id, ControlType::Button, widget);
}
