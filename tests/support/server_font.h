// server_font.h: fonts that a test adds to its server.

#pragma once

#include <string>

namespace kite::testing {

// Another name for a font that the server has.
void giveServerFont(const std::string& name, const std::string& font);

}  // namespace kite::testing
