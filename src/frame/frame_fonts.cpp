#include "frame/frame_fonts.h"

#include "frame/settings.h"
#include "toolkit/font_list.h"
#include "toolkit/never_destroyed.h"

namespace kite::frameFonts {

namespace {

// Filled by load(), emptied by release().
struct Fonts {
    FontList statusLine;
    FontList menuBar;
    FontList output;
};
Fonts& fonts = neverDestroyed<Fonts>();

}  // namespace

void load(Display* display)
{
    fonts.statusLine.load(display, settings::statusLineFont().c_str());
    fonts.menuBar.load(display, settings::menuBarFont().c_str());
    fonts.output.load(display, settings::outputFont().c_str());
}

void release(const Display* display)
{
    fonts.statusLine.release(display);
    fonts.menuBar.release(display);
    fonts.output.release(display);
}

XmFontList statusLine()
{
    return fonts.statusLine.get();
}

XmFontList menuBar()
{
    return fonts.menuBar.get();
}

XmFontList output()
{
    return fonts.output.get();
}

XmFontList dialog()
{
    return statusLine();
}

void apply(Widget widget, XmFontList font)
{
    if (font) XtVaSetValues(widget, XmNfontList, font, nullptr);
}

}  // namespace kite::frameFonts
