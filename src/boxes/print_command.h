// print_command.h: the command that prints a file. No X here.

#pragma once

#include <optional>
#include <string>

namespace kite {

// The user's command, else the default, for the file. None when the user has an empty command, and when the line
// would be longer than 2047 bytes.
std::optional<std::string> printCommandFor(const std::string& file, bool wrapsLines);

}  // namespace kite
