// settings.cpp: a setting of the tour's own. A host that defines a host service takes the place of kitehost's.

#include <dlfcn.h>
#include <kitegui.h>

#include <cstdio>
#include <string_view>

// Not everybody has a printer at hand: without a print command in the profile, printing copies the file.
void kxGetUPStr(const char* section, const char* key, char* buffer, int size)
{
    if (std::string_view{key} == "lpcmd")
        std::snprintf(buffer, static_cast<std::size_t>(size), "cp %%file tour-printed.txt");
    using Service = void (*)(const char*, const char*, char*, int);
    static const auto kitehosts = reinterpret_cast<Service>(dlsym(RTLD_NEXT, "kxGetUPStr"));
    if (kitehosts) kitehosts(section, key, buffer, size);
}
