#include "toolkit/font_list.h"

#include <utility>

#include "toolkit/x_error_trap.h"

namespace kite {

namespace {

// A name of more than a thousand bytes is an error to some servers, not a font that they do not have.
XFontStruct* loaded(Display* display, const char* fontName)
{
    const XErrorTrap trap{display};
    return XLoadQueryFont(display, fontName);
}

}  // namespace

void FontList::load(Display* display, const char* fontName)
{
    if (list_ && name_ == fontName) return;
    freeList();
    name_ = fontName;
    XFontStruct* const font = loaded(display, fontName);
    if (!font) return;
    fonts_.push_back(font);
    XmFontListEntry entry =
        XmFontListEntryCreate(const_cast<char*>(XmFONTLIST_DEFAULT_TAG), XmFONT_IS_FONT, font);
    list_ = XmFontListAppendEntry(nullptr, entry);
    XmFontListEntryFree(&entry);
}

void FontList::release(Display* display)
{
    freeList();
    for (XFontStruct* const font : std::exchange(fonts_, {})) XFreeFont(display, font);
}

void FontList::freeList()
{
    if (list_) XmFontListFree(list_);
    list_ = nullptr;
}

}  // namespace kite
