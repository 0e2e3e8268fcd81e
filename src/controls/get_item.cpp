// get_item.cpp: finds, counts and reads items.

#include <Xm/Container.h>
#include <Xm/List.h>
#include <kitegui.h>

#include <climits>
#include <cstdlib>
#include <new>

#include "boxes/misuse.h"
#include "controls/items.h"
#include "controls/tree_items.h"
#include "toolkit/compound_string.h"
#include "toolkit/host_buffer.h"
#include "toolkit/outline.h"
#include "toolkit/plain_text.h"

namespace kite {

namespace {

using enum ControlType;

constexpr TypeSet kReadable{List, Choice, Combo, Tree};
constexpr TypeSet kSearched{List, Tree};

constexpr int kFoundInTree = 1;      // hosts never search trees, but some ask
constexpr int kLongestNumber = 256;  // with the terminating null

int findInList(Widget list, int startIndex, const char* text)
{
    if (startIndex == INT_MAX) return GUI_FAILED;
    const CompoundString wanted{itemTextOf(text).c_str()};
    for (int index = std::max(startIndex + 1, 0); XmString const item = itemAt(list, index);
         ++index)
        if (XmStringCompare(item, wanted.get())) return index;
    return GUI_FAILED;
}

// An item that the tree does not have is an empty one, unlike one of the others.
int readTreeItem(Widget container, int index, char* buffer, int size)
{
    if (index < 0) return GUI_FAILED;
    Widget const item = findItemOfIndex(container, index);
    return item ? copyToBuffer(buffer, size, plainTextOf(item, XmNlabelString)) : 0;
}

template <typename Number>
Number number(int id, int index, Number (*parse)(const char*))
{
    char text[kLongestNumber];
    return guiGetItem(id, index, text, sizeof text) > 0 ? parse(text) : Number{};
}

}  // namespace

}  // namespace kite

using namespace kite;

int guiFindItem(int id, int startIndex, const char* text)
{
    if (!text) return GUI_FAILED;
    const Control control = findControl("FindItem", id, kSearched);
    if (!control) return GUI_FAILED;
    if (control.type == Tree) return kFoundInTree;
    return findInList(control.widget, startIndex, text);
}

int guiGetItem(int id, int index, char* buffer, int size)
{
    if (!isUsableBuffer(buffer, size)) return reportMisuse("GetItem: invalid buffer");
    buffer[0] = '\0';
    const Control control = findControl("GetItem", id, kReadable);
    if (!control) return GUI_FAILED;
    if (control.type == Tree) return readTreeItem(control.widget, index, buffer, size);
    const auto text = itemText(listOf(control), index);
    return text ? copyToBuffer(buffer, size, *text) : GUI_FAILED;
}

double guiGetItemDbl(int id, int index)
{
    return number<double>(id, index, std::atof);
}

int guiGetItemInt(int id, int index)
{
    return number<int>(id, index, std::atoi);
}

// Of a tree: of those that are selected.
int guiGetItemCount(int id)
{
    const Control control = findControl("GetItemCount", id, kReadable);
    if (!control) return GUI_FAILED;
    return control.type == Tree ? outline::selectedCount(control.widget)
                                : itemCount(listOf(control));
}

int guiGetItemLen(int id, int index)
{
    const Control control = findControl("GetItemLen", id, kWithItems);
    if (!control) return GUI_FAILED;
    try {
        const auto text = itemText(listOf(control), index);
        return text ? static_cast<int>(text->length()) : GUI_FAILED;
    } catch (const std::bad_alloc&) {
        return reportMisuse("GetItemLen: out of memory");
    }
}
