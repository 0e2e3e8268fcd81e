// label_text.h: the names of menu items and controls: "&File" is the label "File", in menus with the
// mnemonic F.

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

// The label of a control: the first 255 bytes of the text, and of these what is left without any "&".
// Empty for null.
std::string controlLabel(const char* text);

}  // namespace kite
