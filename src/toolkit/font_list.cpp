#include "toolkit/font_list.h"

namespace kite {

void FontList::load(Display* display, const char* fontName)
{
    if (list_ && display_ == display) return;
    abandon();
    font_ = XLoadQueryFont(display, fontName);
    if (!font_) return;
    display_ = display;
    XmFontListEntry entry =
        XmFontListEntryCreate(const_cast<char*>(XmFONTLIST_DEFAULT_TAG), XmFONT_IS_FONT, font_);
    list_ = XmFontListAppendEntry(nullptr, entry);
    XmFontListEntryFree(&entry);
}

void FontList::release()
{
    if (font_) XFreeFont(display_, font_);
    abandon();
}

void FontList::abandon()
{
    if (list_) XmFontListFree(list_);
    list_ = nullptr;
    font_ = nullptr;
}

}  // namespace kite
