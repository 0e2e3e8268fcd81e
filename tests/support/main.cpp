// main.cpp: the main function of every GUI test program.
//
// One test is one process on one display. A program that is asked for several runs itself for each; one
// that is asked for one test runs itself on a display of its own, and there, in a child that is watched,
// the test. Nothing of it touches the display that DISPLAY names at the start.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <iostream>
#include <sstream>

#include "artefacts.h"
#include "failure_report.h"
#include "patience.h"
#include "private_display.h"
#include "process.h"
#include "test_options.h"
#include "toolkit_errors.h"
#include "watchdog.h"

namespace kite::testing {

namespace {

std::string ownPath()
{
    return std::filesystem::read_symlink("/proc/self/exe").string();
}

std::vector<std::string> commandFor(const TestOptions& options, const std::string& test)
{
    std::vector<std::string> command{ownPath(), "--gtest_filter=" + test};
    command.insert(command.end(), options.others.begin(), options.others.end());
    return command;
}

int runGoogleTest(const TestOptions& options)
{
    std::vector<std::string> arguments = commandFor(options, options.filter);
    std::vector<char*> pointers;
    for (std::string& argument : arguments) pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    int count = static_cast<int>(arguments.size());
    ::testing::InitGoogleMock(&count, pointers.data());
    return RUN_ALL_TESTS();
}

int runHere(const TestOptions& options)
{
    artefacts::begin(options.filter);
    return runWatched(
        [&] {
            watchXErrors();
            watchToolkitErrors();
            reportFailuresWithPictures();
            return runGoogleTest(options);
        },
        testDeadline());
}

int runOnDisplay(const TestOptions& options)
{
    if (options.isOnItsDisplay) claimDisplay();
    if (isOnPrivateDisplay()) return runHere(options);
    std::vector<std::string> command = commandFor(options, options.filter);
    command.emplace_back("--on-its-display");
    runOnPrivateDisplay(environment("KITE_TEST_WM"), environment("KITE_TEST_SCREEN"), command);
    return EXIT_FAILURE;
}

// From the list that GoogleTest prints: suites at the margin, their tests indented.
std::vector<std::string> selectedTests(const TestOptions& options)
{
    std::vector<std::string> command = commandFor(options, options.filter);
    command.emplace_back("--gtest_list_tests");
    Process lister{command};
    std::vector<std::string> tests;
    if (!lister.wait()) return tests;
    std::istringstream lines{lister.output()};
    std::string suite;
    for (std::string line; std::getline(lines, line);) {
        const std::string name = line.substr(0, line.find("  #"));
        if (name.starts_with("  "))
            tests.push_back(suite + name.substr(2));
        else
            suite = name;
    }
    return tests;
}

bool runSeparately(const TestOptions& options, const std::string& test)
{
    // It ends by its own watchdog.
    Process process{commandFor(options, test)};
    constexpr seconds kForever{24 * 3600};
    const bool isPassed = process.wait(kForever) && process.exitStatus() == EXIT_SUCCESS;
    if (!isPassed) std::cout << process.output();
    std::cout << (isPassed ? "[   PASSED ] " : "[   FAILED ] ") << test << std::endl;
    return isPassed;
}

int runEach(const TestOptions& options)
{
    const std::vector<std::string> tests = selectedTests(options);
    int failures = 0;
    for (int i = 0; i < options.repetitions; ++i)
        for (const std::string& test : tests) failures += !runSeparately(options, test);
    std::cout << tests.size() << " tests, " << failures << " failures" << std::endl;
    // A filter that selects nothing is a mistake.
    return tests.empty() || failures ? EXIT_FAILURE : EXIT_SUCCESS;
}

}  // namespace

}  // namespace kite::testing

int main(int argc, char** argv)
{
    using namespace kite::testing;
    const TestOptions options = readOptions(argc, argv);
    if (options.onlyTells) return runGoogleTest(options);
    if (isOneTest(options.filter) && options.repetitions == 1) return runOnDisplay(options);
    return runEach(options);
}
