// text_positions.h: positions of a text widget and bytes of its text.
//
// They are the same unless the host has chosen a locale with characters of several bytes: then a text
// widget counts characters.

#pragma once

#include <cstddef>
#include <string_view>

namespace kite {

// How many positions a text takes. A byte that is no character takes one.
long positionsIn(std::string_view text);

// The byte at a position; the end of the text for one beyond it.
std::size_t byteAt(std::string_view text, long position);

}  // namespace kite
