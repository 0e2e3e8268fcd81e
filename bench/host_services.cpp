// host_services.cpp: a host without a profile, so that no file access blurs a figure.

#include <kitegui.h>

#include <cstdlib>
#include <filesystem>
#include <string>

namespace bench {

namespace {

class Directory {
public:
    Directory()
    {
        if (mkdtemp(name_.data())) withSlash_ = name_ + '/';
    }
    ~Directory()
    {
        std::error_code ignored;
        std::filesystem::remove_all(name_.c_str(), ignored);
    }
    Directory(const Directory&) = delete;
    Directory& operator=(const Directory&) = delete;

    const char* name() const { return withSlash_.c_str(); }

private:
    std::string name_ = std::filesystem::temp_directory_path() / "kitegui-bench-XXXXXX";
    std::string withSlash_ = "./";
};

}  // namespace

}  // namespace bench

int kxGetUPInt(const char*, const char*, int defaultValue)
{
    return defaultValue;
}

void kxSetUPInt(const char*, const char*, int) {}

void kxGetUPStr(const char*, const char*, char*, int) {}

// An empty one of our own, for what a benchmark puts there.
const char* kxAppDir(void)
{
    static const bench::Directory directory;
    return directory.name();
}

const char* kxFullName(const char* path)
{
    return path;
}

int kxLocNamePos(const char*)
{
    return 0;
}

int kxExec(const char*, int, int)
{
    return GUI_FAILED;
}
