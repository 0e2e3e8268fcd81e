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

// The dialog under construction is to be run, by this function.
void startDialog(int (*run)());
bool isDialogRequested();
void withdrawDialog();

// Starts what is waiting for nothing any more, a dialog before a plug-in, and gives its result; nothing when
// there is none.
std::optional<int> runOne();

}  // namespace kite::deferred
