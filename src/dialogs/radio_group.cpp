#include "dialogs/radio_group.h"

#include <Xm/ToggleB.h>

#include <algorithm>

#include "dialogs/control_type.h"
#include "toolkit/children.h"

namespace kite {

namespace {

bool isRadio(Widget widget)
{
    return Tag::of(widget).type() == ControlType::Radio;
}

// From the neighbour on, as far as the group goes in that direction.
template <typename Iterator>
void clearGroup(Iterator neighbour, Iterator end)
{
    const Iterator groupEnd = std::find_if_not(neighbour, end, isRadio);
    std::for_each(neighbour, groupEnd,
                  [](Widget other) { XmToggleButtonSetState(other, False, False); });
}

}  // namespace

void clearOthersOfGroup(Widget radio)
{
    const auto children = childrenOf(XtParent(radio));
    const auto found = std::find(children.begin(), children.end(), radio);
    clearGroup(std::make_reverse_iterator(found), children.rend());
    clearGroup(found + 1, children.end());
}

}  // namespace kite
