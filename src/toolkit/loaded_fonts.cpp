#include "toolkit/loaded_fonts.h"

#include <map>

#include "toolkit/display_closing.h"
#include "toolkit/font_list.h"
#include "toolkit/never_destroyed.h"

namespace kite {

namespace {

// By name, from the first load until the display is closed.
using Fonts = std::map<std::string, FontList>;
using Displays = std::map<Display*, Fonts>;
Displays& fontsOn = neverDestroyed<Displays>();

void release(Display* display)
{
    for (auto& [name, font] : fontsOn[display]) font.release(display);
    fontsOn.erase(display);
}

}  // namespace

XmFontList loadedFont(Display* display, const std::string& name)
{
    callBeforeClosing(display, release);
    Fonts& fonts = fontsOn[display];
    const auto font = fonts.try_emplace(name).first;
    font->second.load(display, name.c_str());
    if (XmFontList const list = font->second.get()) return list;
    fonts.erase(font);
    return nullptr;
}

}  // namespace kite
