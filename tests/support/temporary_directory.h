// temporary_directory.h: a directory that is gone when its object is.

#pragma once

#include <filesystem>
#include <string>

namespace kite::testing {

class TemporaryDirectory {
public:
    explicit TemporaryDirectory(const std::string& purpose);
    ~TemporaryDirectory();
    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

    const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};

}  // namespace kite::testing
