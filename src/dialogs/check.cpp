// check.cpp: an independent choice, on or off.

#include <Xm/ToggleB.h>
#include <kitegui.h>

#include "boxes/misuse.h"
#include "dialogs/building.h"
#include "dialogs/layout_metrics.h"
#include "dialogs/toggle.h"
#include "frame/dispatcher.h"
#include "frame/focus_leave.h"
#include "frame/hover.h"

namespace kite {

namespace {

// The handler of either event may destroy the check box.
void toggled(Widget, XtPointer tag, XtPointer call)
{
    const bool isSet = static_cast<XmToggleButtonCallbackStruct*>(call)->set == XmSET;
    hover::cancel();
    focusLeave::deliver();
    raise(GUI_EVENT_CHECK, Tag{tag}.id(), isSet ? 1 : 0);
}

constexpr ToggleKind kCheck{"v_dlgcheck", XmN_OF_MANY, layout::kCheckHeight, toggled};

}  // namespace

}  // namespace kite

using namespace kite;

int guiCheck(int id, int row, int x, int width, const char* text)
{
    if (!building::mayCreate("Check", id, 1)) return GUI_FAILED;

    Widget const widget = createToggle(kCheck, {id, ControlType::Check}, row, x, width, text);
    if (!widget) return reportMisuse("Check: cannot create control %d", id);

    return building::append(id, ControlType::Check, widget);
}
