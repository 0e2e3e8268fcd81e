// status.cpp: whether controls can be operated and seen, and which of them has the keyboard.

#include <X11/Intrinsic.h>
#include <kitegui.h>

#include "controls/hidden_text.h"
#include "dialogs/control_lookup.h"
#include "dialogs/dialog_run.h"
#include "dialogs/late_focus.h"
#include "frame/dispatcher.h"
#include "toolkit/insertion_cursor.h"

namespace kite {

namespace {

using enum ControlType;

constexpr TypeSet kEnabled{Label, Edit,  Button,   Check, Radio,  Choice, List,
                           Text,  Combo, Progress, Tree,  Slider, Spin};

constexpr TypeSet kFocusable{Edit, Button, Check, Radio,  Choice, List,
                             Text, Combo,  Tree,  Slider, Spin};

constexpr TypeSet kWithCursor{Edit, Text};

}  // namespace

}  // namespace kite

using namespace kite;

int guiIdStatus(int id)
{
    const Control control = findControl("IdStatus", id);
    if (!control) return GUI_FAILED;
    return XtIsSensitive(control.widget) ? 1 : 0;
}

// Scroll bars stay as they are: what cannot be operated can still be read.
void guiEnable(int id, int enable)
{
    const Control control = findControl("Enable", id, kEnabled);
    if (!control) return;
    const EventsSuppressed quiet;
    if (control.type == Edit) keepHidden(control.widget, enable != 0);
    XtSetSensitive(control.widget, enable != 0);
    if (enable) return;
    if (kWithCursor.has(control.type)) hideInsertionCursor(control.widget);
    leaveDisabled(control.widget);
}

void guiSetFocus(int id)
{
    const Control control = findControl("SetFocus", id, kFocusable);
    if (!control) return;
    const EventsSuppressed quiet;
    dialogRun::requestFocus(control.widget);
    moveFocus(control.widget);
}

void guiSetVisible(int id, int visible)
{
    const Control control = findControl("SetVisible", id);
    if (!control) return;
    const EventsSuppressed quiet;
    XtSetMappedWhenManaged(control.widget, visible != 0);
    if (control.outer != control.widget) XtSetMappedWhenManaged(control.outer, visible != 0);
}
