#include "boxes/file_choice.h"

#include <sys/stat.h>

namespace kite {

namespace {

constexpr std::size_t kLongestPath = 1023;

}  // namespace

FileFound findFile(const std::string& path)
{
    struct stat found {};
    if (stat(path.c_str(), &found) != 0) return FileFound::Missing;
    return S_ISDIR(found.st_mode) ? FileFound::Directory : FileFound::File;
}

std::string withExtension(const std::string& path, const std::string& extension)
{
    const std::size_t name = path.rfind('/') + 1;  // 0 without a directory
    const bool hasExtension = path.find('.', name) != std::string::npos;
    const std::size_t length = path.size() + 1 + extension.size();
    if (extension.empty() || hasExtension || length > kLongestPath) return path;
    return path + '.' + extension;
}

}  // namespace kite
