// private_display.h: the display that belongs to one test process and to nobody else.

#pragma once

#include <string>
#include <vector>

namespace kite::testing {

// True when DISPLAY was started for the tests: KITE_TEST_DISPLAY names the same one.
bool isOnPrivateDisplay();

// Says that DISPLAY is one: for the process that with-display has started.
void claimDisplay();

// Replaces this process by with-display, which starts a server of that screen size (empty: its own
// choice) and a window manager, and runs the command there. Returns only when that cannot be done.
void runOnPrivateDisplay(const std::string& windowManager, const std::string& screenSize,
                         const std::vector<std::string>& command);

}  // namespace kite::testing
