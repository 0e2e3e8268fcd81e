// process.h: other programs, run as real clients or hosts on the display of the test.
//
//     Process host{{"./hello"}, {{"HOME", home}}};
//     Window const window = wm::waitForWindow("Hello");
//     wm::close(window);
//     ASSERT_TRUE(host.wait());
//     EXPECT_EQ(host.exitStatus(), 0);
//     EXPECT_EQ(host.output(), "");
//
// The program ends with its object, or when the test process dies.

#pragma once

#include <sys/types.h>

#include <string>
#include <utility>
#include <vector>

#include "patience.h"

namespace kite::testing {

class Process {
public:
    using Environment = std::vector<std::pair<std::string, std::string>>;  // on top of our own

    // The first word is looked up in PATH. Standard input is empty unless one is given.
    explicit Process(const std::vector<std::string>& command, const Environment& environment = {},
                     const std::string& input = {});
    ~Process();
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    pid_t pid() const { return pid_; }
    bool isRunning();

    // Waits for the end, while the application under test goes on. False when it still runs.
    bool wait(milliseconds deadline = patience());

    void send(int signal);

    // After the end: the status, or 128 + the signal that ended it. 127: it could not be started.
    int exitStatus() const { return status_; }

    // All it has printed until now, on standard output and error.
    std::string output() const;

private:
    pid_t pid_ = -1;  // -1: not started, or its end has been seen
    int status_ = 127;
    int output_ = -1;  // a file without a name
};

}  // namespace kite::testing
