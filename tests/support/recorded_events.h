// recorded_events.h: the events of one action, and of one kind.

#pragma once

#include <functional>
#include <vector>

#include "recorder.h"

namespace kite::testing {

// What comes of the action, until nothing is under way any more.
std::vector<Event> eventsDuring(const std::function<void()>& action);

std::vector<Event> only(int event, std::vector<Event> events);
std::vector<Event> without(int event, std::vector<Event> events);

}  // namespace kite::testing
