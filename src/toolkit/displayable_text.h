// displayable_text.h: as much of a text as X can show.

#pragma once

#include <string>

namespace kite {

// Texts go to the server in one request a line, and a request beyond the server's limit ends the
// process. The limit is 256 KiB on the smallest servers; no screen shows a text of 64.
constexpr std::size_t kLongestDisplayableText = 65535;  // bytes

// The same for a text that is edited in one line, where more of it is worth having.
constexpr int kLongestEditableText = 250000;  // bytes

// The beginning of the text, up to that limit; empty for null.
std::string displayableText(const char* text);

}  // namespace kite
