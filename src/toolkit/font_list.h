// font_list.h: owns a font list made of one X font.

#pragma once

#include <Xm/Xm.h>

namespace kite {

class FontList {
public:
    FontList() = default;
    ~FontList() { release(); }

    FontList(const FontList&) = delete;
    FontList& operator=(const FontList&) = delete;

    // Loads the font by its X name, unless one is loaded on this display. A name that the server does not know leaves
    // the list empty.
    void load(Display* display, const char* fontName);
    void release();

    // Null when no font is loaded.
    XmFontList get() const { return list_; }

private:
    void abandon();  // the font's display may be closed already

    Display* display_ = nullptr;
    XFontStruct* font_ = nullptr;
    XmFontList list_ = nullptr;
};

}  // namespace kite
