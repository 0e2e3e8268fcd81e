// main_loop.h: the loop that runs the frame until it is closed.

#pragma once

namespace kite {

bool isLoopRunning();

// How many event loops had begun before the one that the frame's events come from; -1 when that is the host's.
int loopsBeforeFrame();

}  // namespace kite
