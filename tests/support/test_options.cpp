#include "test_options.h"

#include <cstdlib>
#include <optional>
#include <string_view>

#include "environment.h"

namespace kite::testing {

namespace {

struct EnvironmentOption {
    std::string_view prefix;
    const char* variable;
};
constexpr EnvironmentOption kOwnOptions[] = {
    {"--wm=", "KITE_TEST_WM"},
    {"--screen=", "KITE_TEST_SCREEN"},
    {"--deadline=", "KITE_TEST_DEADLINE"},
    {"--seed=", "KITE_TEST_SEED"},
    {"--events=", "KITE_TEST_EVENTS"},
};

std::optional<std::string> valueOf(std::string_view argument, std::string_view prefix)
{
    if (!argument.starts_with(prefix)) return std::nullopt;
    return std::string{argument.substr(prefix.size())};
}

bool takeOwn(std::string_view argument)
{
    for (const EnvironmentOption& option : kOwnOptions) {
        if (const auto value = valueOf(argument, option.prefix)) {
            setenv(option.variable, value->c_str(), 1);
            return true;
        }
    }
    return false;
}

void take(TestOptions& options, const std::string& argument)
{
    if (argument == "--on-its-display")
        options.isOnItsDisplay = true;
    else if (const auto filter = valueOf(argument, "--gtest_filter="))
        options.filter = *filter;
    else if (const auto times = valueOf(argument, "--gtest_repeat="))
        options.repetitions = std::stoi(*times);
    else if (!takeOwn(argument))
        options.others.push_back(argument);
    if (argument == "--gtest_list_tests" || argument == "--help" || argument == "-h")
        options.onlyTells = true;
}

}  // namespace

TestOptions readOptions(int argc, char** argv)
{
    TestOptions options;
    options.filter = environment("GTEST_FILTER", "*");
    for (int i = 1; i < argc; ++i) take(options, argv[i]);
    setenv("KITE_TEST_WM", environment("KITE_TEST_WM", "mwm").c_str(), 1);
    // Where the caller has not chosen: what makes the list of the toolkit's leaks match.
    setenv("ASAN_OPTIONS", "fast_unwind_on_malloc=0", 0);
    setenv("LSAN_OPTIONS", "suppressions=" KITE_TEST_LEAKS ":print_suppressions=0", 0);
    return options;
}

bool isOneTest(const std::string& filter)
{
    return filter.find_first_of("*?:-") == std::string::npos;
}

}  // namespace kite::testing
