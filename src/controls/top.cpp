// top.cpp: the first line or item that a control shows, counted from 0.

#include <Xm/Text.h>
#include <kitegui.h>

#include "controls/list_top.h"
#include "controls/text_lines.h"
#include "dialogs/control_lookup.h"
#include "dialogs/first_visible.h"

namespace kite {

namespace {

using enum ControlType;

constexpr TypeSet kScrolled{List, Text, Tree};
constexpr TypeSet kScrollable{List, Text};

void showFromLine(Widget text, int line)
{
    const auto start = startOfLine(text, line);
    if (!start) return;
    XmTextSetTopCharacter(text, *start);
    XmTextSetInsertionPosition(text, *start);
    XmTextShowPosition(text, *start);
}

}  // namespace

}  // namespace kite

using namespace kite;

int guiGetTop(int id)
{
    const Control control = findControl("GetTop", id, kScrolled);
    if (!control) return GUI_FAILED;
    return firstVisible(control.widget, control.type).value_or(GUI_FAILED);
}

// Moving the view is not a change of the library's own that the host must not hear of: events pass.
void guiSetTop(int id, int line)
{
    const Control control = findControl("SetTop", id, kScrollable);
    if (!control) return;
    if (control.type == List)
        setTopItem(control.widget, line);
    else
        showFromLine(control.widget, line);
}
