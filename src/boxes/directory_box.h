// directory_box.h: the box in which the user chooses a directory.

#pragma once

#include <optional>
#include <string>

#include "boxes/file_box.h"

namespace kite {

// The directory as the user has left it in the selection text; none when the user gives up.
std::optional<std::string> chooseDirectory(const FileBox::Content& content);

}  // namespace kite
