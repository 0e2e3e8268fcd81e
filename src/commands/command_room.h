// command_room.h: what menu bar and toolbar remember, and forget when the frame is restarted.

#pragma once

#include <array>

#include "commands/command_table.h"

namespace kite::commands {

inline constexpr int kDeepestLevel = 255;
inline constexpr int kMostAccelerators = 256;

struct Room {
    CommandTable items;    // of the menu bar
    CommandTable buttons;  // of the toolbar

    int level = 0;                                   // 0 at the menu bar
    std::array<WidgetRef, kDeepestLevel + 1> menus;  // the open one of each level; not of level 0
    int accelerators = 0;

    int separators = 0;             // of the toolbar
    bool hasGapBeforeNext = false;  // set by a separator, used up by the next button
    std::string imageDirectory;     // set by the first button, for good
    Widget tipOwner = nullptr;      // the button that the pointer is on; only compared
};

// Commands can be built until the frame is started, and again after a restart.
Room& room();
bool isConstructing();

}  // namespace kite::commands
