// test_options.h: the command line of a test program: GoogleTest's, and these of our own:
//
//     --wm=mwm|openbox|none      the window manager (else KITE_TEST_WM, else mwm)
//     --screen=1280x1024x24      size and depth of the screen (else KITE_TEST_SCREEN)
//     --deadline=30              seconds for each test; 0: no end (else KITE_TEST_DEADLINE)
//     --seed=1                   of tests with random steps (else KITE_TEST_SEED)
//     --events=20000             how many steps these do (else KITE_TEST_EVENTS)

#pragma once

#include <string>
#include <vector>

namespace kite::testing {

struct TestOptions {
    bool onlyTells = false;           // --gtest_list_tests, --help: nothing is run
    bool isOnItsDisplay = false;      // with-display has started us
    int repetitions = 1;              // --gtest_repeat
    std::string filter = "*";         // --gtest_filter
    std::vector<std::string> others;  // for GoogleTest
};

// Our own options go into the environment, from where the whole family of processes has them.
TestOptions readOptions(int argc, char** argv);

// The filter names one test, without wildcards.
bool isOneTest(const std::string& filter);

}  // namespace kite::testing
