// frame_fonts.h: the three fonts of the frame, which dialogs and boxes share.

#pragma once

#include <Xm/Xm.h>

namespace kite::frameFonts {

// Loads those that are not loaded, by the names in the user's settings.
void load(Display* display);
void release(const Display* display);

// Null when the font could not be loaded: widgets then keep the toolkit's.
XmFontList statusLine();
XmFontList menuBar();
XmFontList output();

// Boxes and dialogs are in the status line's font.
XmFontList dialog();

// Gives a widget one of these fonts, when there is one.
void apply(Widget widget, XmFontList font);

}  // namespace kite::frameFonts
