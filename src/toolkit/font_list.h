// font_list.h: owns a font list made of one X font.

#pragma once

#include <Xm/Xm.h>

#include <string>
#include <vector>

namespace kite {

class FontList {
public:
    FontList() = default;
    ~FontList() { abandon(); }

    FontList(const FontList&) = delete;
    FontList& operator=(const FontList&) = delete;

    // Loads the font by its X name, unless it is loaded on this display. A name that the server does not
    // know leaves the list empty.
    void load(Display* display, const char* fontName);

    // Frees what was loaded on the display; what belongs to another one, closed perhaps, is forgotten.
    void release(const Display* display);

    // Null when no font is loaded.
    XmFontList get() const { return list_; }

private:
    void freeList();
    void abandon();  // the font's display may be closed already

    Display* display_ = nullptr;
    std::string name_;
    std::vector<XFontStruct*>
        fonts_;  // the last one is in use; widgets may still refer to the others
    XmFontList list_ = nullptr;
};

}  // namespace kite
