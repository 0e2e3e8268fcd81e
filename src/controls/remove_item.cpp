// remove_item.cpp: removes items, or everything that a control holds.

#include <Xm/List.h>
#include <Xm/Text.h>
#include <kitegui.h>

#include "controls/drop_down_selection.h"
#include "controls/edited_text.h"
#include "controls/items.h"
#include "controls/kept_size.h"
#include "controls/list_selection.h"
#include "controls/tree_items.h"
#include "frame/dispatcher.h"
#include "toolkit/outline.h"

namespace kite {

namespace {

using enum ControlType;

constexpr TypeSet kWithSingleItems{List, Choice, Combo, Tree};
constexpr TypeSet kClearable{Edit, Text, Choice, Combo, List, Tree};

// Where the keyboard cursor goes when an item goes: to the item before the one that it was on, or stays
// there by number when the item was that one or behind it, unless that is the end.
int cursorAfterRemoval(int cursor, int removed, int count)
{
    return removed >= cursor && cursor != count - 1 ? cursor : cursor - 1;
}

void removeFromList(Widget list, int index)
{
    const int count = itemCount(list);
    if (index < 0 || index >= count) return;
    const int cursor = cursorAfterRemoval(cursorOf(list), index, count);
    XmListDeletePos(list, positionOf(index));
    if (cursor < 0) return;
    setCursor(list, cursor);
    if (!selectsSeveral(list)) selectItem(list, cursor);
}

void removeFrom(const Control& control, int index)
{
    const EventsSuppressed quiet;
    const KeptSize size{control.outer};
    switch (control.type) {
    case List: return removeFromList(control.widget, index);
    case Tree:
        if (Widget const item = guitreefind(control.widget, nullptr, index)) destroyAlone(item);
        return;
    default: return deleteItem(control.widget, positionOf(index));
    }
}

void clear(const Control& control)
{
    const EventsSuppressed quiet;
    const KeptSize size{control.outer};
    switch (control.type) {
    case List: return XmListDeleteAllItems(control.widget);
    case Tree: return destroyTopLevel(control.widget);
    case Choice:
    case Combo: return deleteAllItems(control.widget);
    default: return setEditedText(control.widget, "");
    }
}

}  // namespace

}  // namespace kite

using namespace kite;

void guiRemoveItem(int id, int index)
{
    if (const Control control = findControl("RemoveItem", id, kWithSingleItems))
        removeFrom(control, index);
}

void guiRemoveAll(int id)
{
    if (const Control control = findControl("RemoveAll", id, kClearable)) clear(control);
}
