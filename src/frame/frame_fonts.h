// frame_fonts.h: the three fonts of the frame, which dialogs and boxes share, on each display in use.

#pragma once

#include <Xm/Xm.h>

namespace kite::frameFonts {

enum class Use { StatusLine, MenuBar, Output, Dialog };

// Loads those that are not loaded on the display, by the names in the user's settings.
void load(Display* display);

// Frees those of the display, which is still open.
void release(Display* display);

// Null when the font could not be loaded: widgets then keep the toolkit's.
XmFontList of(Widget widget, Use use);

// Gives a widget one of the fonts, when there is one.
void apply(Widget widget, Use use);

}  // namespace kite::frameFonts
