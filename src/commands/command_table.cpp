#include "commands/command_table.h"

#include <algorithm>

namespace kite::commands {

namespace {

template <typename Iterator, typename Predicate>
Command* first(Iterator begin, Iterator end, Predicate isWanted)
{
    const auto found = std::find_if(
        begin, end, [&](const Command& command) { return command.widget && isWanted(command); });
    return found == end ? nullptr : &*found;
}

}  // namespace

Command* CommandTable::find(int id)
{
    return first(records_.begin(), records_.end(),
                 [id](const Command& command) { return command.id == id; });
}

Command* CommandTable::find(Widget widget)
{
    return first(records_.begin(), records_.end(),
                 [widget](const Command& command) { return command.widget.get() == widget; });
}

Command* CommandTable::last()
{
    return first(records_.rbegin(), records_.rend(), [](const Command&) { return true; });
}

}  // namespace kite::commands
