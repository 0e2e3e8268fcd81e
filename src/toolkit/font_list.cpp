#include "toolkit/font_list.h"

namespace kite {

void FontList::load(Display* display, const char* fontName)
{
    if (display_ != display) abandon();
    if (list_ && name_ == fontName) return;
    freeList();
    display_ = display;
    name_ = fontName;
    XFontStruct* const font = XLoadQueryFont(display, fontName);
    if (!font) return;
    fonts_.push_back(font);
    XmFontListEntry entry =
        XmFontListEntryCreate(const_cast<char*>(XmFONTLIST_DEFAULT_TAG), XmFONT_IS_FONT, font);
    list_ = XmFontListAppendEntry(nullptr, entry);
    XmFontListEntryFree(&entry);
}

void FontList::release(const Display* display)
{
    if (display_ == display)
        for (XFontStruct* const font : fonts_) XFreeFont(display_, font);
    abandon();
}

void FontList::abandon()
{
    freeList();
    fonts_.clear();
    display_ = nullptr;
}

void FontList::freeList()
{
    if (list_) XmFontListFree(list_);
    list_ = nullptr;
}

}  // namespace kite
