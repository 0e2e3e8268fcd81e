// radio.cpp: one choice of several: the radio buttons that were made one after the other are a group,
// and of a group one is set.

#include <Xm/ToggleB.h>
#include <kitegui.h>

#include "boxes/misuse.h"
#include "dialogs/building.h"
#include "dialogs/layout_metrics.h"
#include "dialogs/radio_group.h"
#include "dialogs/toggle.h"
#include "frame/dispatcher.h"
#include "frame/focus_leave.h"
#include "frame/hover.h"

namespace kite {

namespace {

// The handler of either event may destroy the radio button.
void toggled(Widget radio, XtPointer tag, XtPointer call)
{
    hover::cancel();
    if (static_cast<XmToggleButtonCallbackStruct*>(call)->set != XmSET) {
        XmToggleButtonSetState(radio, True, False);  // it can only be left for another one
        return;
    }
    clearOthersOfGroup(radio);
    focusLeave::deliver();
    raise(GUI_EVENT_RADIO, Tag{tag}.id(), 1);
}

constexpr ToggleKind kRadio{"v_dlgradio", XmONE_OF_MANY, layout::kRadioHeight, toggled};

bool beginsGroup()
{
    const auto controls = building::controls().records();
    return controls.empty() || controls.back().type != ControlType::Radio;
}

}  // namespace

}  // namespace kite

using namespace kite;

int guiRadio(int id, int row, int x, int width, const char* text)
{
    if (!building::mayCreate("Radio", id, 1)) return GUI_FAILED;

    Widget const widget = createToggle(kRadio, {id, ControlType::Radio}, row, x, width, text);
    if (!widget) return reportMisuse("Radio: cannot create control %d", id);

    if (beginsGroup()) XmToggleButtonSetState(widget, True, False);
    return building::append(id, ControlType::Radio, widget);
}
