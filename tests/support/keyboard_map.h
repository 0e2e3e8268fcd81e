// keyboard_map.h: which key of the display's keyboard gives a symbol.

#pragma once

#include <X11/Xlib.h>

#include <string_view>
#include <vector>

namespace kite::testing {

struct Key {
    KeyCode code = 0;
    bool shift = false;
};

// A symbol that no key has is put on an unused key, for the rest of the test. Code 0: no key is left.
Key keyFor(KeySym symbol);

// The symbols that type a text of UTF-8; '\n' is Return, '\t' Tab, '\b' BackSpace, 27 Escape.
std::vector<KeySym> symbolsOf(std::string_view utf8);

}  // namespace kite::testing
