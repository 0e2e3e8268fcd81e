// patience.h: how long the harness waits before it calls something a failure.

#pragma once

#include <chrono>
#include <string>

#include "environment.h"

namespace kite::testing {

using std::chrono::milliseconds;
using std::chrono::seconds;

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
inline constexpr int kSlowness = 3;  // instrumented code
#else
inline constexpr int kSlowness = 1;
#endif

// For one condition: 5 s, longer for instrumented code; KITE_TEST_PATIENCE is a factor on it.
inline milliseconds patience()
{
    static const double factor = std::stod(environment("KITE_TEST_PATIENCE", "1"));
    return milliseconds{static_cast<long>(5000 * kSlowness * factor)};
}

// For a whole test: 30 s, longer for instrumented code; KITE_TEST_DEADLINE (seconds) overrides it.
inline seconds testDeadline()
{
    static const std::string chosen = environment("KITE_TEST_DEADLINE");
    return chosen.empty() ? seconds{30 * kSlowness} : seconds{std::stol(chosen)};
}

}  // namespace kite::testing
