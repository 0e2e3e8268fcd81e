// loaded_fonts.h: fonts that hosts ask for by name, each loaded once.

#pragma once

#include <Xm/Xm.h>

#include <string>

namespace kite {

// The font of that X name, alone in a list; null when the server has none, which is asked anew each time.
// Widgets refer to the fonts of their lists: they stay loaded until the display is closed.
XmFontList loadedFont(Display* display, const std::string& name);

}  // namespace kite
