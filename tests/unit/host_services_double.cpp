#include "host_services_double.h"

#include <kitegui.h>

#include <cstring>

using kite::testing::profile;

namespace {

void note(const char* section, const char* key, int number)
{
    profile().calls.push_back(std::string{section} + "/" + key + " " + std::to_string(number));
}

}  // namespace

kite::testing::ProfileDouble& kite::testing::profile()
{
    static ProfileDouble instance;
    return instance;
}

int kxGetUPInt(const char* section, const char* key, int defaultValue)
{
    note(section, key, defaultValue);
    const auto found = profile().integers.find(key);
    return found == profile().integers.end() ? defaultValue : found->second;
}

void kxSetUPInt(const char* section, const char* key, int value)
{
    note(section, key, value);
    profile().integers[key] = value;
}

void kxGetUPStr(const char* section, const char* key, char* buffer, int size)
{
    note(section, key, size);
    const auto found = profile().strings.find(key);
    if (found != profile().strings.end())
        std::strncpy(buffer, found->second.c_str(), static_cast<std::size_t>(size));
}

const char* kxAppDir(void)
{
    return "./";
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
