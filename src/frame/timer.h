// timer.h: the one periodic timer.

#pragma once

namespace kite::periodicTimer {

// Takes the timer away for good: the next one is up to the host.
void stop();

}  // namespace kite::periodicTimer
