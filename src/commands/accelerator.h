// accelerator.h: the key that chooses a menu item: Control and a letter or digit.

#pragma once

#include <string>

namespace kite::commands {

// A letter or digit; 0 and a blank stand for no accelerator.
bool isAccelerator(char key);
bool isNoAccelerator(char key);

struct Accelerator {
    std::string translation;  // for the toolkit: "Ctrl<Key>O"
    std::string text;         // shown beside the label: "Ctrl+O"
};

// A lower-case letter is the key alone, an upper-case one the key with Shift; both are shown in upper
// case. For letters and digits only.
Accelerator acceleratorFor(char key);

}  // namespace kite::commands
