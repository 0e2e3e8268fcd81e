// watchdog.h: runs a test in a child process and sees to its end.
//
// A test that hangs, or that dies of a signal, fails with a picture of the screen, which this process
// takes over a connection of its own. A hanging one is first asked for its last words.

#pragma once

#include <functional>

#include "patience.h"

namespace kite::testing {

// Returns the status for main: the test's own, or 1. A deadline of 0 runs it right here, for debuggers.
int runWatched(const std::function<int()>& test, seconds deadline);

}  // namespace kite::testing
