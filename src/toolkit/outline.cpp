#include "toolkit/outline.h"

#include <Xm/ContainerP.h>
#include <Xm/GadgetP.h>

#include <cstdint>
#include <vector>

#include "toolkit/children.h"
#include "toolkit/resources.h"

namespace kite::outline {

namespace {

// What is being destroyed is linked until Xt comes to it, which may be after the handler has returned.
Widget firstAlive(CwidNode node)
{
    while (node && isBeingDestroyed(node->widget_ptr)) node = node->next_ptr;
    return node ? node->widget_ptr : nullptr;
}

// Other than lists of children, this one is made anew each time it is asked for.
std::vector<Widget> selectedItems(Widget container)
{
    auto* const items = resource<WidgetList>(container, XmNselectedObjects);
    const auto count = resource<unsigned int>(container, XmNselectedObjectCount);
    std::vector<Widget> alive{items, items + (items ? count : 0)};
    XtFree(reinterpret_cast<char*>(items));
    std::erase_if(alive, isBeingDestroyed);
    return alive;
}

bool isExpanded(Widget item)
{
    return GetContainerConstraint(item)->outline_state == XmEXPANDED;
}

// A row that is below another one cannot be above the height when that one is not.
int rowsAboveAmong(Widget container, Widget parent, int height)
{
    int rows = 0;
    for (Widget item = firstChild(container, parent); item; item = nextSibling(item)) {
        if (item->core.y + item->core.height > height) break;
        ++rows;
        if (isExpanded(item)) rows += rowsAboveAmong(container, item, height);
    }
    return rows;
}

}  // namespace

Widget firstChild(Widget container, Widget parent)
{
    if (!parent)
        return firstAlive(reinterpret_cast<XmContainerWidget>(container)->container.first_node);
    CwidNode const node = GetContainerConstraint(parent)->node_ptr;
    return node ? firstAlive(node->child_ptr) : nullptr;
}

Widget nextSibling(Widget item)
{
    CwidNode const node = GetContainerConstraint(item)->node_ptr;
    return node ? firstAlive(node->next_ptr) : nullptr;
}

int keyOf(Widget item)
{
    XtPointer const data = reinterpret_cast<XmGadget>(item)->gadget.user_data;
    return static_cast<int>(reinterpret_cast<std::intptr_t>(data));
}

int indexOf(Widget item)
{
    return static_cast<int>(static_cast<unsigned>(keyOf(item)) - 1U);
}

Widget selectedItem(Widget container)
{
    const auto items = selectedItems(container);
    return items.empty() ? nullptr : items.front();
}

int selectedCount(Widget container)
{
    return static_cast<int>(selectedItems(container).size());
}

int rowsAbove(Widget container, int height)
{
    return rowsAboveAmong(container, nullptr, height);
}

}  // namespace kite::outline
