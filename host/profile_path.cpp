#include "profile_path.h"

#include <cstdlib>
#include <filesystem>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kitehost {
namespace {

constexpr const char* kProfileName = "/kitegui/profile.ini";
constexpr int kMaxLinks = 40;  // as many as the system follows
constexpr mode_t kDirectoryMode = 0700;

// The directory a variable names. A relative one counts as none: the profile would wander with the
// current directory.
std::string directoryFrom(const char* variable)
{
    const char* const value = std::getenv(variable);
    return value && *value == '/' ? value : "";
}

std::string homeDirectory()
{
    if (std::string home = directoryFrom("HOME"); !home.empty()) return home;
    const passwd* const user = getpwuid(getuid());
    return user && user->pw_dir ? user->pw_dir : "";
}

std::string configurationDirectory()
{
    if (std::string chosen = directoryFrom("XDG_CONFIG_HOME"); !chosen.empty()) return chosen;
    const std::string home = homeDirectory();
    return home.empty() ? home : home + "/.config";
}

}  // namespace

std::string profilePath()
{
    if (const char* const chosen = std::getenv("KITE_PROFILE"); chosen && *chosen) return chosen;
    const std::string directory = configurationDirectory();
    return directory.empty() ? directory : directory + kProfileName;
}

std::optional<std::string> behindLinks(std::string path)
{
    for (int links = 0; links <= kMaxLinks; ++links) {
        std::error_code error;
        const std::string target = std::filesystem::read_symlink(path, error).string();
        if (error) return path;
        path = target.starts_with('/') ? target : directoryOf(path).append(target);
    }
    return std::nullopt;
}

std::string directoryOf(const std::string& path)
{
    const std::size_t separator = path.rfind('/');
    return separator == std::string::npos ? "./" : path.substr(0, separator + 1);
}

// What cannot be created shows when a file is opened there.
void createDirectoriesFor(const std::string& path)
{
    for (std::size_t end = path.find('/', 1); end != std::string::npos;
         end = path.find('/', end + 1))
        mkdir(path.substr(0, end).c_str(), kDirectoryMode);
}

}  // namespace kitehost
