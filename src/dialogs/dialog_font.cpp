#include "dialogs/dialog_font.h"

#include "toolkit/compound_string.h"

namespace kite {

namespace {

FontMeasures measure(XFontStruct* font)
{
    return {XTextWidth(font, kAlphabet, sizeof kAlphabet - 1),
            font->max_bounds.ascent + font->max_bounds.descent + 1};
}

FontMeasures measureFirstOf(XFontSet set)
{
    XFontStruct** fonts = nullptr;
    char** names = nullptr;
    XFontsOfFontSet(set, &fonts, &names);
    return measure(fonts[0]);
}

// Fonts that are not X's own: the toolkit knows their size.
FontMeasures measureShown(XmFontList list)
{
    const CompoundString alphabet{kAlphabet};
    return {XmStringWidth(list, alphabet.get()), XmStringHeight(list, alphabet.get()) + 1};
}

XmFontListEntry firstEntry(XmFontList list)
{
    XmFontContext context = nullptr;
    if (!XmFontListInitFontContext(&context, list)) return nullptr;
    XmFontListEntry const entry = XmFontListNextEntry(context);
    XmFontListFreeFontContext(context);
    return entry;
}

}  // namespace

std::optional<FontMeasures> measureFirstFont(XmFontList list)
{
    XmFontListEntry const entry = firstEntry(list);
    XmFontType type = XmFONT_IS_FONT;
    XtPointer const font = entry ? XmFontListEntryGetFont(entry, &type) : nullptr;
    if (!font) return std::nullopt;
    if (type == XmFONT_IS_FONT) return measure(static_cast<XFontStruct*>(font));
    if (type == XmFONT_IS_FONTSET) return measureFirstOf(static_cast<XFontSet>(font));
    return measureShown(list);
}

}  // namespace kite
