// main_loop.h: the loop that runs the frame until it is closed.

#pragma once

namespace kite {

bool isLoopRunning();

}  // namespace kite
