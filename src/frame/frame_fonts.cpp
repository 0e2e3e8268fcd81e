#include "frame/frame_fonts.h"

#include <map>

#include "frame/settings.h"
#include "toolkit/font_list.h"
#include "toolkit/never_destroyed.h"

namespace kite::frameFonts {

namespace {

struct Fonts {
    FontList statusLine;
    FontList menuBar;
    FontList output;
};

// Filled by load(), emptied by release(). An owner's display may be another than the frame's.
std::map<Display*, Fonts>& fontsOn = neverDestroyed<std::map<Display*, Fonts>>();

const FontList& chosen(const Fonts& fonts, Use use)
{
    switch (use) {
    case Use::MenuBar: return fonts.menuBar;
    case Use::Output: return fonts.output;
    case Use::StatusLine:
    case Use::Dialog: break;  // boxes and dialogs are in the status line's font
    }
    return fonts.statusLine;
}

}  // namespace

void load(Display* display)
{
    Fonts& fonts = fontsOn[display];
    fonts.statusLine.load(display, settings::statusLineFont().c_str());
    fonts.menuBar.load(display, settings::menuBarFont().c_str());
    fonts.output.load(display, settings::outputFont().c_str());
}

void release(Display* display)
{
    Fonts& fonts = fontsOn[display];
    for (FontList* const font : {&fonts.statusLine, &fonts.menuBar, &fonts.output})
        font->release(display);
    fontsOn.erase(display);
}

XmFontList of(Widget widget, Use use)
{
    const auto fonts = fontsOn.find(XtDisplayOfObject(widget));
    return fonts == fontsOn.end() ? nullptr : chosen(fonts->second, use).get();
}

void apply(Widget widget, Use use)
{
    if (XmFontList const font = of(widget, use)) XtVaSetValues(widget, XmNfontList, font, nullptr);
}

}  // namespace kite::frameFonts
