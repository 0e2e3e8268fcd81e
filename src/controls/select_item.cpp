// select_item.cpp: selects and deselects items, lines and stretches of text.

#include <Xm/Container.h>
#include <Xm/List.h>
#include <Xm/Text.h>
#include <Xm/TextF.h>
#include <kitegui.h>

#include <algorithm>

#include "boxes/misuse.h"
#include "controls/drop_down_selection.h"
#include "controls/items.h"
#include "controls/list_selection.h"
#include "controls/list_top.h"
#include "controls/tree_items.h"
#include "dialogs/building.h"
#include "dialogs/text_field.h"
#include "frame/dispatcher.h"
#include "toolkit/parked_copy.h"
#include "toolkit/resources.h"
#include "toolkit/text_positions.h"

namespace kite {

namespace {

using enum ControlType;

constexpr TypeSet kTexts{Edit, Text};
constexpr TypeSet kSelectable{Edit, Spin, Choice, Combo, List, Text, Tree};

Time now(Widget widget)
{
    return XtLastTimestampProcessed(XtDisplay(widget));
}

void selectText(Widget text, XmTextPosition first, XmTextPosition last)
{
    XmTextSetSelection(text, first, last, now(text));
}

// From the insertion point, which goes there. The toolkit selects nothing backwards.
void selectTo(Widget field, int offset)
{
    const XmTextPosition from = XmTextGetInsertionPosition(field);
    const auto to = std::clamp<XmTextPosition>(offset, 0, XmTextGetLastPosition(field));
    selectText(field, std::min(from, to), std::max(from, to));
    XmTextSetInsertionPosition(field, to);
}

void selectInDropDown(Widget box, int position)
{
    if (position < 0)
        clearSelection(box);
    else
        selectPosition(box, position);
}

// How many lines of the dialog's font the list shows.
int visibleLines(const Control& list)
{
    const double lineHeight = building::units().vertical() * 8;
    return static_cast<int>(resource<Dimension>(list.outer, XmNheight) / lineHeight);
}

// The item in the middle, or the end of the list at the bottom.
void scrollTo(const Control& list, int index)
{
    const int visible = visibleLines(list);
    const int count = itemCount(list.widget);
    int top = 1;
    if (index + 1 > visible) top = index - visible / 2 + 1;
    if (count - visible < index + 1) top = count - visible + 1;
    setTopItem(list.widget, std::max(top, 1) - 1);
}

void selectInList(const Control& list, int index)
{
    if (index < 0 || index >= itemCount(list.widget)) return;
    selectItem(list.widget, index);
    if (selectedPositions(list.widget).size() != 1) return;
    setCursor(list.widget, index);
    scrollTo(list, index);
}

// The end of what is selected is the length of the line, not its end: for the first line that is the same,
// and hosts have been written for what the others give. An empty line is as long as all that follows.
void selectLine(Widget text, int line)
{
    const LineStarts* const lines = parkCopy(text);
    if (!lines) {
        reportMisuse("GetLine: out of memory");
        return;
    }
    const auto found = lines->line(line);
    if (!found) return;
    const std::string_view before = lines->text().substr(0, lines->behindLineEnds(line));
    const XmTextPosition start = positionsIn(before);
    const std::string_view rest = lines->text().substr(before.size());
    const XmTextPosition length = positionsIn(found->empty() ? rest : *found);
    XmTextClearSelection(text, now(text));
    selectText(text, start, length);
    XmTextShowPosition(text, start);
}

void clearText(Widget text)
{
    XmTextClearSelection(text, now(text));
    XmTextSetInsertionPosition(text, 0);
    XmTextShowPosition(text, 0);
}

bool hasSelectionToClear(const Control& control)
{
    if (control.type == List) return selectsSeveral(control.widget);
    return kTexts.has(control.type) || control.type == Combo;
}

void select(const Control& control, int index)
{
    const EventsSuppressed quiet;
    switch (control.type) {
    case Edit: return selectTo(control.widget, index);
    case Spin: return selectTo(fieldOf(control.widget), index);
    case List: return selectInList(control, index);
    case Text: return selectLine(control.widget, index);
    case Tree: return selectTreeItem(control.widget, index);
    default: return selectInDropDown(control.widget, index);
    }
}

}  // namespace

}  // namespace kite

using namespace kite;

void guiSelAll(int id)
{
    const Control control = findControl("SelAll", id);
    if (!control) return;
    const bool isList = control.type == List && selectsSeveral(control.widget);
    if (!isList && !kTexts.has(control.type)) return refuse("SelAll", id);
    const EventsSuppressed quiet;
    if (isList)
        selectAllItems(control.widget);
    else
        selectText(control.widget, 0, XmTextGetLastPosition(control.widget));
}

void guiSetSel(int id, int index)
{
    if (const Control control = findControl("SetSel", id, kSelectable)) select(control, index);
}

// What has no selection to clear is left alone without a word, other than by most operations.
void guiClrAll(int id)
{
    const Control control = findControl("ClrAll", id);
    if (!control || !hasSelectionToClear(control)) return;
    const EventsSuppressed quiet;
    switch (control.type) {
    case List: return XmListDeselectAllItems(control.widget);
    case Combo: return clearSelection(control.widget);
    default: return clearText(control.widget);
    }
}

void guiClrSel(int id, int index)
{
    const Control control = findControl("ClrSel", id);
    if (!control || kTexts.has(control.type) || !hasSelectionToClear(control)) return;
    const EventsSuppressed quiet;
    if (control.type == Combo)
        clearSelection(control.widget);
    else if (itemAt(control.widget, index))
        XmListDeselectPos(control.widget, positionOf(index));
}
