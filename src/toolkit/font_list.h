// font_list.h: owns a font list made of one X font.

#pragma once

#include <Xm/Xm.h>

#include <string>
#include <vector>

namespace kite {

class FontList {
public:
    FontList() = default;
    ~FontList() { freeList(); }  // the fonts' display may be closed already

    FontList(const FontList&) = delete;
    FontList& operator=(const FontList&) = delete;

    // Loads the font by its X name, unless it is the one that is loaded. A name that the server does not
    // know leaves the list empty. All calls are for one display.
    void load(Display* display, const char* fontName);
    void release(Display* display);

    // Null when no font is loaded.
    XmFontList get() const { return list_; }

private:
    void freeList();

    std::string name_;
    std::vector<XFontStruct*>
        fonts_;  // the last one is in use; widgets may still refer to the others
    XmFontList list_ = nullptr;
};

}  // namespace kite
