#include "host_double.h"

#include <kitegui.h>

#include <cstdio>
#include <fstream>
#include <ostream>

namespace kite::testing {

std::ostream& operator<<(std::ostream& out, const ExecCall& call)
{
    return out << '"' << call.command << "\" " << call.flag1 << ' ' << call.flag2;
}

HostDouble& HostDouble::instance()
{
    static HostDouble host;
    return host;
}

std::filesystem::path HostDouble::addFile(const std::string& name, const std::string& contents)
{
    const std::filesystem::path path = appDir() / name;
    std::filesystem::create_directories(path.parent_path());
    std::ofstream{path, std::ios::binary} << contents;
    return path;
}

int HostDouble::exec(const std::string& command, int flag1, int flag2)
{
    commands_.push_back({command, flag1, flag2});
    return onExec_ ? onExec_(command) : execResult_;
}

}  // namespace kite::testing

using kite::testing::HostDouble;

int kxGetUPInt(const char* section, const char* key, int defaultValue)
{
    return HostDouble::instance().profile().readInt(section, key, defaultValue);
}

void kxSetUPInt(const char* section, const char* key, int value)
{
    HostDouble::instance().profile().writeInt(section, key, value);
}

void kxGetUPStr(const char* section, const char* key, char* buffer, int size)
{
    const auto value = HostDouble::instance().profile().readString(section, key, size);
    if (value) std::snprintf(buffer, static_cast<std::size_t>(size), "%s", value->c_str());
}

const char* kxAppDir(void)
{
    return HostDouble::instance().appDirName().c_str();
}

const char* kxFullName(const char* path)
{
    static std::string full;
    if (!HostDouble::instance().knowsFullNames()) return nullptr;
    full = std::filesystem::absolute(path).lexically_normal().string();
    return full.c_str();
}

int kxLocNamePos(const char* path)
{
    const std::string name = path;
    const auto slash = name.rfind('/');
    return slash == std::string::npos ? 0 : static_cast<int>(slash) + 1;
}

int kxExec(const char* commandLine, int flag1, int flag2)
{
    return HostDouble::instance().exec(commandLine, flag1, flag2);
}
