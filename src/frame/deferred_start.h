// deferred_start.h: what a handler asks for and gets when it has returned.

#pragma once

#include <kitegui.h>

#include <optional>

namespace kite::deferred {

// Counts the handlers that are running. A request waits for the handler that made it, also when other
// handlers run and return meanwhile, inside a box that it shows.
class HandlerRunning {
public:
    HandlerRunning();
    ~HandlerRunning();

    HandlerRunning(const HandlerRunning&) = delete;
    HandlerRunning& operator=(const HandlerRunning&) = delete;
};

// Starts what is waiting for nothing any more, and gives its result; nothing when there is none.
std::optional<int> runOne();

}  // namespace kite::deferred
