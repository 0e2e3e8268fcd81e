// host_test.h: what the tests of the host services share: a directory of their own, a profile in
// it, and child processes.

#pragma once

#include <kitegui.h>

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <sys/types.h>
#include <vector>

// An environment variable that has another value, or none, until the end of the scope.
class Environment {
public:
    Environment(const char* name, const char* value);
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;
    ~Environment();

private:
    std::string name;
    std::string before;
    bool wasSet;
};

class HostTest : public testing::Test {
protected:
    HostTest();
    ~HostTest() override;

    std::string in(const std::string& name) const;

    // Writes the file in place.
    void putProfile(const std::string& text) const;
    std::string profileText() const;

    const std::string directory;
    const std::string profile;
    const Environment chosenProfile;
};

std::string readFile(const std::string& path);
void writeFile(const std::string& path, const std::string& text);
mode_t modeOf(const std::string& path);
bool exists(const std::string& path);
std::vector<std::string> namesIn(const std::string& directory);

// The string setting, or "(absent)".
std::string getStr(const std::string& section, const std::string& key);

// Runs the steps in a process of their own. Returns its process id.
pid_t startChild(const std::function<void()>& steps);

// The exit status of a child; -1 when a signal ended it.
int endOf(pid_t child);

// The steps ran in a process of their own and no expectation in them failed.
testing::AssertionResult heldInChild(const std::function<void()>& steps);

// The same, as a user whom file permissions concern.
testing::AssertionResult heldAsOrdinaryUser(const std::function<void()>& steps);
