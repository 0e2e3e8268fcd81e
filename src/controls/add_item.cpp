// add_item.cpp: adds items to lists, choices and combo boxes.

#include <Xm/List.h>
#include <kitegui.h>

#include "controls/drop_down_selection.h"
#include "controls/item_number.h"
#include "controls/items.h"
#include "controls/kept_size.h"
#include "controls/list_selection.h"
#include "dialogs/drop_down.h"
#include "frame/dispatcher.h"
#include "toolkit/compound_string.h"

namespace kite {

namespace {

constexpr int kAtEnd = -1;

// The first item of a list in which one at most would be selected by clicks is selected at once.
void addToList(Widget list, XmString item, int position)
{
    XmListAddItemUnselected(list, item, position);
    if (position > 0) XmListUpdateSelectedList(list);
    if (itemCount(list) == 1 && selectionKindOf(list) != SelectionKind::Multiple)
        XmListSelectPos(list, 1, False);
}

void addToDropDown(Widget box, Widget list, XmString item, int position)
{
    insertItem(box, item, position);
    fitDropDownList(box);
    if (itemCount(list) == 1) selectPosition(box, 0);
}

void addItem(const char* operation, int id, int index, const char* text)
{
    const Control control = findControl(operation, id, kWithItems);
    if (!control) return;
    const CompoundString item{itemTextOf(text).c_str()};
    const EventsSuppressed quiet;
    const KeptSize size{control.outer};
    if (control.type == ControlType::List)
        addToList(control.widget, item.get(), positionOf(index));
    else
        addToDropDown(control.widget, listOf(control), item.get(), positionOf(index));
}

}  // namespace

}  // namespace kite

using namespace kite;

void guiAppendItem(int id, const char* text)
{
    addItem("AppendItem", id, kAtEnd, text);
}

void guiAppendItemDbl(int id, double value)
{
    guiAppendItem(id, itemNumber(value).c_str());
}

void guiAppendItemInt(int id, int value)
{
    guiAppendItem(id, std::to_string(value).c_str());
}

void guiInsertItem(int id, int index, const char* text)
{
    addItem("InsertItem", id, index, text);
}

void guiInsertItemDbl(int id, int index, double value)
{
    guiInsertItem(id, index, itemNumber(value).c_str());
}

void guiInsertItemInt(int id, int index, int value)
{
    guiInsertItem(id, index, std::to_string(value).c_str());
}
