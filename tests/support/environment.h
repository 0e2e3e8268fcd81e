// environment.h: environment variables as strings.
//
// The harness reads: KITE_TEST_WM (mwm, openbox, none), KITE_TEST_SCREEN (1280x1024x24),
// KITE_TEST_DEADLINE (seconds until a test counts as hanging; 0: never), KITE_TEST_PATIENCE (factor on
// all waiting), KITE_TEST_SEED and KITE_TEST_EVENTS (of tests with random steps), KITE_TEST_ARTEFACTS (where screenshots
// go), KITE_TEST_WITH_DISPLAY (the script that starts displays) and KITE_TEST_DISPLAY (set by itself).

#pragma once

#include <cstdlib>
#include <string>

namespace kite::testing {

inline std::string environment(const char* name, const std::string& whenUnset = {})
{
    const char* const value = std::getenv(name);
    return value && *value ? value : whenUnset;
}

}  // namespace kite::testing
