// command_events.h: what choosing a menu item or toolbar button raises.

#pragma once

#include "commands/command_table.h"

namespace kite::commands {

void raiseFromItem(Widget item, int id, Style style);
void raiseFromButton(Widget button, int id, Style style);

// Sets a check command without a word to the host; leaves a plain one alone.
void setCheck(const Command& command, bool isSet);

}  // namespace kite::commands
