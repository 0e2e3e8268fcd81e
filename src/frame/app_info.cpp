#include "frame/app_info.h"

#include <kitegui.h>

#include "frame/session.h"
#include "toolkit/host_buffer.h"

namespace kite {

namespace {

constexpr int kSize = 64;

struct {
    char title[kSize] = "Kite";
    char name[kSize] = "kite";
} info;

void replaceUnlessEmpty(char (&field)[kSize], const char* text)
{
    if (text && *text) copyToBuffer(field, kSize, text);
}

}  // namespace

const char* appTitle()
{
    return info.title;
}

const char* appName()
{
    return info.name;
}

}  // namespace kite

int guiSetAppInfo(const char* title, const char* name)
{
    kite::replaceUnlessEmpty(kite::info.title, title);
    kite::replaceUnlessEmpty(kite::info.name, name);
    kite::session::dropToolkitWarnings();
    return 0;
}
