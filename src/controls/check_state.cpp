// check_state.cpp: check boxes and radio buttons.

#include <Xm/ToggleB.h>
#include <kitegui.h>

#include "dialogs/control_lookup.h"
#include "frame/dispatcher.h"

namespace {

constexpr kite::TypeSet kToggles{kite::ControlType::Check, kite::ControlType::Radio};

}  // namespace

using namespace kite;

int guiGetCheck(int id)
{
    const Control control = findControl("GetCheck", id, kToggles);
    if (!control) return GUI_FAILED;
    return XmToggleButtonGetState(control.widget) ? 1 : 0;
}

// The other radio buttons of the group stay as they are: the host sets each of them.
void guiSetCheck(int id, int state)
{
    const Control control = findControl("SetCheck", id, kToggles);
    if (!control) return;
    const EventsSuppressed quiet;
    XmToggleButtonSetState(control.widget, state != 0, False);
}
