#include "dialogs/first_look.h"

#include <X11/IntrinsicP.h>
#include <Xm/BulletinB.h>
#include <Xm/Frame.h>

#include <algorithm>
#include <span>

#include "dialogs/building.h"
#include "dialogs/layout_metrics.h"
#include "toolkit/children.h"
#include "toolkit/rect.h"

namespace kite {

namespace {

using Records = std::span<const ControlRecord>;

constexpr int kCancelId = 0;

constexpr TypeSet kTakesFirstFocus{ControlType::Edit,   ControlType::Button, ControlType::Check,
                                   ControlType::Radio,  ControlType::Choice, ControlType::List,
                                   ControlType::Slider, ControlType::Spin,   ControlType::Tree,
                                   ControlType::Combo,  ControlType::Text};

// The margin at the right and the bottom is that at the left and the top.
void fitToControls(Widget board, Records controls)
{
    int right = 0;
    int bottom = 0;
    for (const ControlRecord& control : controls) {
        const CorePart& core = control.widget->core;
        right = std::max(right, core.x + core.width);
        bottom = std::max(bottom, core.y + core.height);
    }
    const DialogUnits& units = building::units();
    XtVaSetValues(board, XmNwidth, asDimension(right + units.pixelsAcross(layout::kMargin)),
                  XmNheight, asDimension(bottom + units.pixelsDown(layout::kMargin)), nullptr);
}

// Without the shadow around default buttons all buttons keep the size that they were made with.
void setDefaultButton(Widget board, Records controls)
{
    Widget const button = building::defaultButton();
    if (!button) return;
    XtVaSetValues(board, XmNdefaultButton, button, nullptr);
    for (const ControlRecord& control : controls)
        if (control.type == ControlType::Button)
            XtVaSetValues(control.widget, XmNdefaultButtonShadowThickness, 0, nullptr);
}

template <typename Condition>
void giveFirst(Widget board, const char* resource, Records controls, Condition condition)
{
    const auto found = std::find_if(controls.begin(), controls.end(), condition);
    if (found != controls.end())
        XtVaSetValues(board, const_cast<char*>(resource), found->widget, nullptr);
}

bool isCancelButton(const ControlRecord& control)
{
    return control.id == kCancelId;
}

bool canHaveFirstFocus(const ControlRecord& control)
{
    return kTakesFirstFocus.has(control.type) && XtIsSensitive(control.widget);
}

}  // namespace

void prepareFirstLook()
{
    Widget const board = building::board();
    building::controls().keepChildrenOf(board);
    const Records controls = building::controls().records();
    fitToControls(board, controls);
    setDefaultButton(board, controls);
    giveFirst(board, XmNcancelButton, controls, isCancelButton);
    giveFirst(board, XmNinitialFocus, controls, canHaveFirstFocus);
}

void lowerRectangles(Widget board)
{
    for (Widget const child : childrenOf(board))
        if (XmIsFrame(child) && XtIsRealized(child))
            XLowerWindow(XtDisplay(child), XtWindow(child));
}

}  // namespace kite
