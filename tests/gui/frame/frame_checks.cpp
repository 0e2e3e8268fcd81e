#include "frame_checks.h"

#include <X11/Xatom.h>

#include <fstream>
#include <regex>
#include <sstream>

#include "connection.h"
#include "host_double.h"
#include "pump.h"
#include "widgets.h"

namespace kite::testing {

namespace {

std::string fontNameOf(const XFontStruct* font)
{
    unsigned long value = 0;
    if (!font || !XGetFontProperty(const_cast<XFontStruct*>(font), XA_FONT, &value)) return {};
    char* const name = XGetAtomName(connection(), value);
    std::string copy = name;
    XFree(name);
    return copy;
}

}  // namespace

std::string contentsOf(const std::string& path)
{
    std::ifstream file{path, std::ios::binary};
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

std::string withoutTimes(const std::string& log)
{
    static const std::regex stamp{R"(: \d{4}\.\d{2}\.\d{2} \d{2}:\d{2}:\d{2}\n)"};
    return std::regex_replace(log, stamp, ": T\n");
}

std::string fontNameFor(const std::string& pattern)
{
    XFontStruct* const font = XLoadQueryFont(connection(), pattern.c_str());
    std::string name = fontNameOf(font);
    if (font) XFreeFont(connection(), font);
    return name;
}

bool changesByItself(const Rect& rect, const screen::Picture& before)
{
    return waitUntil([&] { return screen::grab(rect) != before; });
}

void savePlace(const Rect& place)
{
    Profile& profile = HostDouble::instance().profile();
    profile.setInt("mwndx", place.x, "kite");
    profile.setInt("mwndy", place.y, "kite");
    profile.setInt("mwndw", place.width, "kite");
    profile.setInt("mwndh", place.height, "kite");
}

}  // namespace kite::testing
