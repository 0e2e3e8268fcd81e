// main_loop.h: the loop that runs the frame until it is closed, and the end of what it ran.

#pragma once

namespace kite {

bool isLoopRunning();

// Closes the display, with everything of the frame that outlived its window.
void endSession();

}  // namespace kite
