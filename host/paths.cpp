// paths.cpp: where the application lies, and full names of files.

#include "guard.h"

#include <kitegui.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>
#include <string_view>

namespace fs = std::filesystem;

namespace {

// Takes the last name off a directory, as the system does for "..": the parent of a symbolic link
// is the parent of what it points at, not the directory that the link stands in. What does not
// exist has no links to follow.
void goUp(std::string& directory)
{
    std::error_code error;
    if (fs::is_symlink(directory, error)) {
        const fs::path real = fs::canonical(directory, error);
        if (!error) directory = real.string();
    }
    directory.erase(std::min(directory.rfind('/'), directory.size()));
}

bool namesDirectory(std::string_view lastName)
{
    return lastName.empty() || lastName == "." || lastName == "..";
}

// An absolute path without "", "." and ".." in it. Links stay as the user named them, except before
// "..".
std::string normalised(std::string_view path)
{
    std::string result;  // without the '/' at its end
    std::string_view name;
    for (std::size_t at = 0; at <= path.size(); at += name.size() + 1) {
        name = path.substr(at, path.find('/', at) - at);
        if (name == "..")
            goUp(result);
        else if (!namesDirectory(name))
            result.append("/").append(name);
    }
    return namesDirectory(name) ? result + '/' : result;
}

std::string fullName(const std::string& path)
{
    if (path.starts_with('/')) return normalised(path);
    std::error_code error;
    const fs::path current = fs::current_path(error);
    if (error) return path;  // the current directory was removed: there is no full name
    return normalised(current.string() + '/' + path);
}

std::string ownDirectory()
{
    std::error_code error;
    const fs::path program = fs::read_symlink("/proc/self/exe", error);
    if (error) return fullName("");
    return program.parent_path().string() + '/';
}

// Made absolute at once: the host may change its current directory later.
std::string applicationDirectory()
{
    const char* const chosen = std::getenv("KITE_APP_DIR");
    std::string directory = chosen && *chosen ? fullName(chosen) : ownDirectory();
    if (!directory.ends_with('/')) directory += '/';
    return directory;
}

}  // namespace

KITEGUI_API const char* kxAppDir(void)
{
    return kitehost::guarded("./", [] {
        static const std::string directory =
            applicationDirectory();  // once: the pointer stays good
        return directory.c_str();
    });
}

KITEGUI_API const char* kxFullName(const char* path)
{
    return kitehost::guarded(path ? path : "", [path] {
        static std::string result;
        std::string full = fullName(path ? path : "");  // apart: the path may be the last result
        result.swap(full);
        return result.c_str();
    });
}

KITEGUI_API int kxLocNamePos(const char* path)
{
    const char* const separator = path ? std::strrchr(path, '/') : nullptr;
    return separator ? static_cast<int>(separator + 1 - path) : 0;
}
