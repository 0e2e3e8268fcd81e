#include "commands/command_checks.h"

#include <kitegui.h>

#include <cstring>

#include "boxes/misuse.h"

namespace kite::commands {

bool isTooLong(const char* text, int longest)
{
    const auto limit = static_cast<std::size_t>(longest) + 1;
    return !text || strnlen(text, limit) == limit;
}

bool isAcceptable(const Side& side, int id, int style)
{
    const char* const operation = side.operation;
    const auto refuse = [](int) { return false; };
    if (id < 0) return refuse(reportMisuse("%s: invalid command id %d", operation, id));
    if (style != kPlain && style != kCheck)
        return refuse(reportMisuse("%s: invalid style for id %d", operation, id));
    if (id == GUI_COMMAND_CLOSE && style == kCheck)
        return refuse(reportMisuse("%s: command 0 must use plain style", operation));
    if (side.own.find(id))
        return refuse(reportMisuse("%s: duplicate %s id %d", operation, side.what, id));
    const Command* const twin = side.other.find(id);
    if (twin && twin->style != style)
        return refuse(reportMisuse("%s: menu/toolbar style conflict for id %d", operation, id));
    return true;
}

}  // namespace kite::commands
