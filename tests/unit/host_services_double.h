// host_services_double.h: the host services of a test without a display: a profile in memory.

#pragma once

#include <map>
#include <string>
#include <vector>

namespace kite::testing {

struct ProfileDouble {
    std::map<std::string, int> integers;
    std::map<std::string, std::string> strings;

    // Every call, as "section/key" with the default, size or value behind it.
    std::vector<std::string> calls;
};

// One for the process; a test that needs a fresh one assigns {}.
ProfileDouble& profile();

}  // namespace kite::testing
