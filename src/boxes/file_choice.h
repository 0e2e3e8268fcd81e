// file_choice.h: whether the file that the user has chosen is one that the host can use. No X here.

#pragma once

#include <string>

namespace kite {

enum class FileFound { Missing, Directory, File };

// As `stat` finds it.
FileFound findFile(const std::string& path);

// Appends the extension to a name without one, when the whole stays a path that the box can return.
std::string withExtension(const std::string& path, const std::string& extension);

}  // namespace kite
