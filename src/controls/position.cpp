// position.cpp: guiGetPos and guiSetPos, which count differently for every kind of control.
//
//                    guiSetRange           guiSetPos(p)             guiGetPos
//   list             -                     item p on top            item on top
//   multi-line text  longest text          caret to line p, from 0  first visible line, from 1
//   progress bar     min - 1 to max - 1    value p + 1              value
//   slider           min - 1 to max - 1    value p                  value
//   spin box         min to max            position p + 1           text - 1
//
// Hosts are written for each of these numbers.

#include <Xm/ComboBox.h>
#include <Xm/Scale.h>
#include <Xm/Text.h>
#include <kitegui.h>

#include <algorithm>

#include "controls/list_top.h"
#include "controls/text_lines.h"
#include "controls/value_range.h"
#include "dialogs/control_lookup.h"
#include "dialogs/first_visible.h"
#include "frame/dispatcher.h"
#include "toolkit/outline.h"
#include "toolkit/resources.h"

namespace kite {

namespace {

using enum ControlType;

constexpr TypeSet kWithPosition{Choice, List, Text, Progress, Tree, Slider, Spin};
constexpr TypeSet kPositionable{Edit, List, Text, Progress, Tree, Slider, Spin};

// From 1; 0 for an empty text.
int visibleLine(Widget text)
{
    if (XmTextGetLastPosition(text) == 0) return 0;
    const auto top = firstVisible(text, Text);
    return top ? *top + 1 : GUI_FAILED;
}

int selectedTreePosition(Widget container)
{
    Widget const item = outline::selectedItem(container);
    return item ? static_cast<int>(static_cast<unsigned>(outline::keyOf(item)) + 1U) : 0;
}

int spinPosition(int id)
{
    return static_cast<int>(static_cast<unsigned>(guiGetTextInt(id)) - 1U);
}

int position(const Control& control, int id)
{
    switch (control.type) {
    case Choice: return resource<int>(control.widget, XmNselectedPosition);
    case List: return firstVisible(control.widget, List).value_or(GUI_FAILED);
    case Text: return visibleLine(control.widget);
    case Tree: return selectedTreePosition(control.widget);
    case Spin: return spinPosition(id);
    default: return resource<int>(control.widget, XmNvalue);
    }
}

void setCaret(Widget edit, int position)
{
    const auto last = XmTextGetLastPosition(edit);
    XmTextSetInsertionPosition(edit, std::clamp(XmTextPosition{position}, XmTextPosition{0}, last));
}

// False when there is no such line to go to.
bool goToLine(Widget text, int line)
{
    const auto start = startOfLine(text, line);
    if (!start) return false;
    XmTextClearSelection(text, XtLastTimestampProcessed(XtDisplay(text)));
    XmTextSetInsertionPosition(text, *start);
    XmTextShowPosition(text, *start);
    return true;
}

// False when events stay suppressed.
bool setPosition(const Control& control, int pos)
{
    switch (control.type) {
    case Edit: setCaret(control.widget, pos); break;
    case List: setTopItem(control.widget, pos); break;
    case Text: return goToLine(control.widget, pos);
    case Progress: setScaleValue(control.widget, long{pos} + 1); break;
    case Slider: setScaleValue(control.widget, pos); break;
    case Spin: setSpinPosition(control.widget, long{pos} + 1); break;
    default: break;  // a tree has no position that could be set
    }
    return true;
}

}  // namespace

}  // namespace kite

using namespace kite;

// Events stay suppressed afterwards, until an operation that changes something has run: a host that asks
// for a position in the middle of its own changes is not interrupted by their events.
int guiGetPos(int id)
{
    const Control control = findControl("GetPos", id, kWithPosition);
    if (!control) return GUI_FAILED;
    dispatcher::suppressEvents();
    return position(control, id);
}

// Where a text has no such line events stay suppressed, as after guiGetPos.
void guiSetPos(int id, int pos)
{
    const Control control = findControl("SetPos", id, kPositionable);
    if (!control) return;
    dispatcher::suppressEvents();
    if (setPosition(control, pos)) const EventsSuppressed ended;
}
