// label_text.h: the names of menu items: "&File" is the label "File" with the mnemonic F.

#pragma once

#include <string>

namespace kite {

// Removes every occurrence of c from s, in place.
void stripChar(char* s, char c);

// Letters and digits of ASCII, whatever the host's locale says.
bool isLetterOrDigit(char c);

struct LabelText {
    std::string label;     // the name without any "&"
    char mnemonic = '\0';  // what stands behind the first "&", when it is a letter or digit; else 0
};

LabelText parseLabel(const char* name);

}  // namespace kite
