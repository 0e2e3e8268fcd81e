// pump.h: waiting, while the application under test goes on running.
//
// Unless they say otherwise, these process the events of the application under test when this process has
// one. They may be called from anywhere on its thread: inside a handler, a timer or a step of a script.

#pragma once

#include <functional>

#include "patience.h"

namespace kite::testing {

using Condition = std::function<bool()>;

// Waits until the condition holds. False when it did not within the deadline: assert the result.
bool pumpUntil(const Condition& condition, milliseconds deadline = patience());

// The same while the application processes nothing, as if it were computing.
bool waitUntil(const Condition& condition, milliseconds deadline = patience());

// Waits for the whole time, as long as the condition holds. For "nothing happens": keep it short.
bool holdsFor(const Condition& condition, milliseconds time);

// Processes every event that the server has for the application now, and those that come of it.
void settle();

}  // namespace kite::testing
