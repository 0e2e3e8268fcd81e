// profile_path.h: where the profile lies.

#pragma once

#include <optional>
#include <string>

namespace kitehost {

// $KITE_PROFILE, else kitegui/profile.ini in the user's configuration directory. Empty when the
// user has no home directory.
std::string profilePath();

// The file that is replaced when the profile is written: what a symbolic link points at in the end,
// whether it exists or not. Nothing when the links never end.
std::optional<std::string> behindLinks(std::string path);

// The directory part with its '/', or "./".
std::string directoryOf(const std::string& path);

// Creates the missing directories on the way to a file, for their owner only.
void createDirectoriesFor(const std::string& path);

}  // namespace kitehost
