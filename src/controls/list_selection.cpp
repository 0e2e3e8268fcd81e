#include "controls/list_selection.h"

#include <Xm/List.h>

#include <numeric>
#include <vector>

#include "controls/items.h"
#include "toolkit/resources.h"

namespace kite {

namespace {

// An extended selection lets go of the others when an item is selected for the library.
class AsMultiple {
public:
    explicit AsMultiple(Widget list)
        : list_(list), policy_(resource<unsigned char>(list, XmNselectionPolicy))
    {
        if (policy_ == XmEXTENDED_SELECT) set(XmMULTIPLE_SELECT);
    }
    ~AsMultiple()
    {
        if (policy_ == XmEXTENDED_SELECT) set(policy_);
    }

    AsMultiple(const AsMultiple&) = delete;
    AsMultiple& operator=(const AsMultiple&) = delete;

private:
    void set(unsigned char policy) { XtVaSetValues(list_, XmNselectionPolicy, policy, nullptr); }

    Widget list_;
    unsigned char policy_;
};

}  // namespace

SelectionKind selectionKindOf(Widget list)
{
    switch (resource<unsigned char>(list, XmNselectionPolicy)) {
    case XmMULTIPLE_SELECT: return SelectionKind::Multiple;
    case XmEXTENDED_SELECT: return SelectionKind::Extended;
    default: return SelectionKind::One;
    }
}

bool selectsSeveral(Widget list)
{
    return selectionKindOf(list) != SelectionKind::One;
}

std::span<const int> selectedPositions(Widget list)
{
    const int* positions = nullptr;
    int count = 0;
    XtVaGetValues(list, XmNselectedPositions, &positions, XmNselectedPositionCount, &count,
                  nullptr);
    if (!positions || count < 1) return {};
    return {positions, static_cast<std::size_t>(count)};
}

int cursorOf(Widget list)
{
    return XmListGetKbdItemPos(list) - 1;
}

void setCursor(Widget list, int index)
{
    XmListSetKbdItemPos(list, positionOf(index));
}

// Deselected first: a multiple selection would toggle it.
void selectItem(Widget list, int index)
{
    const AsMultiple scope{list};
    XmListDeselectPos(list, positionOf(index));
    XmListSelectPos(list, positionOf(index), False);
}

// All at once: the toolkit looks through the whole list for each single one. Deselected first: it would read
// what it has just freed of the items that were selected.
void selectAllItems(Widget list)
{
    const AsMultiple scope{list};
    XmListDeselectAllItems(list);
    std::vector<int> positions(static_cast<std::size_t>(itemCount(list)));
    std::iota(positions.begin(), positions.end(), 1);
    XtVaSetValues(list, XmNselectedPositions, positions.data(), XmNselectedPositionCount,
                  static_cast<int>(positions.size()), nullptr);
}

}  // namespace kite
