#include "private_display.h"

#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>

#include "environment.h"

namespace kite::testing {

bool isOnPrivateDisplay()
{
    const std::string display = environment("DISPLAY");
    return !display.empty() && display == environment("KITE_TEST_DISPLAY");
}

void claimDisplay()
{
    setenv("KITE_TEST_DISPLAY", environment("DISPLAY").c_str(), 1);
}

void runOnPrivateDisplay(const std::string& windowManager, const std::string& screenSize,
                         const std::vector<std::string>& command)
{
    const std::string script = environment("KITE_TEST_WITH_DISPLAY", KITE_TEST_WITH_DISPLAY);
    std::vector<std::string> arguments{script, "--wm", windowManager};
    if (!screenSize.empty()) arguments.insert(arguments.end(), {"--size", screenSize});
    // Memory that was given back is overwritten: who looks at it all the same, in libraries that no sanitizer
    // knows, does not get away with it.
    arguments.insert(arguments.end(), {"--", "env", "MALLOC_PERTURB_=165"});
    arguments.insert(arguments.end(), command.begin(), command.end());

    std::vector<char*> pointers;
    for (std::string& argument : arguments) pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    execv(script.c_str(), pointers.data());
    std::fprintf(stderr, "%s: %s\n", script.c_str(), std::strerror(errno));
}

}  // namespace kite::testing
