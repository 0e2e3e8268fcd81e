// key_symbol.h: what a key press means under the keyboard mapping.

#pragma once

#include <X11/Xlib.h>

namespace kite {

KeySym keySymbolOf(XKeyEvent* press);

// 1 to 12 for F1 to F12, else 0.
int functionKeyNumber(KeySym symbol);

}  // namespace kite
