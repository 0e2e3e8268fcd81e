// command_table.h: the commands of a menu bar or toolbar, in the order in which they were made.

#pragma once

#include <deque>
#include <string>

#include "toolkit/widget_ref.h"

namespace kite::commands {

inline constexpr std::size_t kMostCommands = 512;  // in one table

// What the host passes as a style.
enum Style { kPlain = 0, kCheck = 1 };

struct Command {
    Command(int commandId, Style commandStyle, Widget button)
        : id(commandId), style(commandStyle), widget(button)
    {
    }

    int id;
    Style style;
    WidgetRef widget;      // a host may destroy it
    std::string tip = {};  // of a toolbar button; empty: none
};

class CommandTable {
public:
    Command& add(int id, Style style, Widget widget)
    {
        return records_.emplace_back(id, style, widget);
    }

    // The first command with the id, or that widget, whose widget exists; null when there is none.
    Command* find(int id);
    Command* find(Widget widget);

    // The newest one whose widget exists; null when there is none.
    Command* last();

    bool isFull() const { return records_.size() >= kMostCommands; }
    int count() const { return static_cast<int>(records_.size()); }
    void clear() { records_.clear(); }

private:
    std::deque<Command> records_;  // references stay where they are
};

}  // namespace kite::commands
