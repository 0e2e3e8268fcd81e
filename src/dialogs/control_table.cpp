#include "dialogs/control_table.h"

#include <algorithm>

#include "toolkit/children.h"

namespace kite {

void ControlTable::add(const ControlRecord& record)
{
    records_[count_++] = record;
    if (record.id >= 0) ids_.set(static_cast<std::size_t>(record.id));
}

// Children stand in the order of their creation, as the records do: one pass over both is enough.
void ControlTable::keepChildrenOf(Widget board)
{
    const std::span<Widget> children = childrenOf(board);
    auto child = children.begin();
    const auto isGone = [&](const ControlRecord& record) {
        const auto found = std::find(child, children.end(), record.widget);
        if (found == children.end()) return true;
        child = found + 1;
        return isBeingDestroyed(*found);
    };
    const auto end = records_.begin() + static_cast<std::ptrdiff_t>(count_);
    count_ =
        static_cast<std::size_t>(std::remove_if(records_.begin(), end, isGone) - records_.begin());
}

void ControlTable::clear()
{
    count_ = 0;
    ids_.reset();
}

}  // namespace kite
