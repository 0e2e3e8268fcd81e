// get_selection.cpp: what is selected.

#include <Xm/Xm.h>
#include <kitegui.h>

#include <algorithm>
#include <memory>
#include <new>
#include <string>

#include "boxes/misuse.h"
#include "controls/control_text.h"
#include "controls/drop_down_selection.h"
#include "controls/items.h"
#include "controls/list_selection.h"
#include "dialogs/control_lookup.h"
#include "toolkit/outline.h"
#include "toolkit/resources.h"

namespace kite {

namespace {

using enum ControlType;

constexpr TypeSet kWithSelection{Choice, Combo, List, Progress, Slider, Tree, Spin};

constexpr std::size_t kCompared = 9;  // bytes of a text that tell items apart

std::string beginningOf(std::string text)
{
    std::erase(text, '\n');  // which a field does not show
    return text.substr(0, kCompared);
}

// In a combo box another text may have been typed. -1 then.
int selectionOfDropDown(const Control& box)
{
    const int position = selectedPosition(box.widget);
    const std::string shown = textOf(box).value_or("");
    const std::string item = itemText(listOf(box), position).value_or("");
    return beginningOf(shown) == beginningOf(item) ? position : GUI_FAILED;
}

int selectionOfTree(Widget container)
{
    Widget const item = outline::selectedItem(container);
    return item ? outline::indexOf(item) : 0;
}

int selectionOf(const Control& control, int id)
{
    switch (control.type) {
    case List: return cursorOf(control.widget);
    case Tree: return selectionOfTree(control.widget);
    case Spin: return static_cast<int>(static_cast<unsigned>(guiGetTextInt(id)) - 1U);
    case Choice:
    case Combo: return selectionOfDropDown(control);
    default: return resource<int>(control.widget, XmNvalue);
    }
}

int storeSelected(Widget list, int* array, int size)
{
    if (!selectsSeveral(list)) {
        array[0] = cursorOf(list);
        return 1;
    }
    const auto positions = selectedPositions(list);
    const auto stored = positions.first(std::min(positions.size(), static_cast<std::size_t>(size)));
    std::transform(stored.begin(), stored.end(), array, [](int position) { return position - 1; });
    return static_cast<int>(stored.size());
}

}  // namespace

}  // namespace kite

using namespace kite;

// Where one item at most can be selected it always counts.
int guiGetSelCount(int id)
{
    const Control control = findControl("GetSelCount", id, {List});
    if (!control) return GUI_FAILED;
    if (!selectsSeveral(control.widget)) return 1;
    return static_cast<int>(selectedPositions(control.widget).size());
}

int guiGetSelItems(int id, int* array, int size)
{
    if (!array || size < 1) return reportMisuse("GetSelItems: invalid array");
    const Control control = findControl("GetSelItems", id, {List});
    return control ? storeSelected(control.widget, array, size) : GUI_FAILED;
}

int guiGetNthSel(int id, int n)
{
    const int count = guiGetSelCount(id);
    if (n < 0 || n > count - 1) return GUI_FAILED;
    const auto size = static_cast<std::size_t>(n) + 1;
    const std::unique_ptr<int[]> items{new (std::nothrow) int[size]};
    if (!items) return reportMisuse("GetNthSel: out of memory");
    guiGetSelItems(id, items.get(), n + 1);
    return items[size - 1];
}

int guiGetSel(int id)
{
    const Control control = findControl("GetSel", id, kWithSelection);
    return control ? selectionOf(control, id) : GUI_FAILED;
}
