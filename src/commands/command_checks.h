// command_checks.h: what menu items and toolbar buttons are refused for.

#pragma once

#include "commands/command_table.h"

namespace kite::commands {

inline constexpr int kLongestName = 63;    // bytes, of a label
inline constexpr int kLongestTip = 63;     // bytes
inline constexpr int kLongestImage = 127;  // bytes, of an image's name

// True for null and for what is longer.
bool isTooLong(const char* text, int longest);

// One side of the menu/toolbar pair.
struct Side {
    const char* operation;  // "MenuItem"
    const char* what;       // "menu item"
    CommandTable& own;
    CommandTable& other;
};

// False after an error box: id or style is wrong, or taken on this side, or of another style on the
// other one.
bool isAcceptable(const Side& side, int id, int style);

}  // namespace kite::commands
