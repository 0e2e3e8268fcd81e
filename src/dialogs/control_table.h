// control_table.h: the controls of the dialog under construction, in the order of their creation.

#pragma once

#include <X11/Intrinsic.h>

#include <array>
#include <bitset>
#include <span>

#include "dialogs/control_type.h"

namespace kite {

struct ControlRecord {
    int id = 0;
    ControlType type{};
    Widget widget = nullptr;  // the outer one, where a control is made of two
};

class ControlTable {
public:
    static constexpr std::size_t kMost = 32768;

    bool isFull() const { return count_ == kMost; }
    bool has(int id) const { return id >= 0 && ids_.test(static_cast<std::size_t>(id)); }

    // Of an id up to kLargestId. The table must not be full.
    void add(const ControlRecord& record);

    // Forgets controls that the host has destroyed: those that are not among the board's children.
    void keepChildrenOf(Widget board);

    void clear();

    std::span<const ControlRecord> records() const { return {records_.data(), count_}; }

private:
    std::array<ControlRecord, kMost> records_{};
    std::size_t count_ = 0;
    std::bitset<kLargestId + 1> ids_;  // those in the records, so that a long table is not searched
};

}  // namespace kite
