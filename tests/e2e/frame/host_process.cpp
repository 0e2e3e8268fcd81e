#include <gtest/gtest.h>

#include "host_process.h"

#include <fstream>
#include <regex>
#include <sstream>

#include "pump.h"

namespace kite::testing {

namespace {

std::vector<std::string> commandOf(const std::vector<std::string>& arguments)
{
    std::vector<std::string> command{FRAME_HOST};
    command.insert(command.end(), arguments.begin(), arguments.end());
    return command;
}

Process::Environment environmentOf(const HostFiles& files, const Process::Environment& more)
{
    Process::Environment environment{{"KITE_PROFILE", files.path("profile.ini")}};
    environment.insert(environment.end(), more.begin(), more.end());
    return environment;
}

}  // namespace

void HostFiles::setProfile(const std::string& lines) const
{
    std::ofstream{path("profile.ini")} << "[frame_host]\n" << lines;
}

std::string HostFiles::contents(const std::string& name) const
{
    std::ifstream file{path(name), std::ios::binary};
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

std::optional<int> HostFiles::savedInt(const std::string& key) const
{
    const std::string profile = contents("profile.ini");
    std::smatch match;
    if (!std::regex_search(profile, match, std::regex{key + R"(\s*=\s*(-?\d+))"}))
        return std::nullopt;
    return std::stoi(match[1]);
}

std::string HostFiles::log(const std::string& name) const
{
    static const std::regex stamp{R"(: \d{4}\.\d{2}\.\d{2} \d{2}:\d{2}:\d{2}\n)"};
    return std::regex_replace(contents(name), stamp, ": T\n");
}

HostProcess::HostProcess(const HostFiles& files, const std::vector<std::string>& arguments,
                         const Environment& environment)
    : Process(commandOf(arguments), environmentOf(files, environment))
{
}

Window HostProcess::window()
{
    if (window_) return window_;
    window_ = wm::waitForWindow("Frame host");
    EXPECT_TRUE(window_ && wm::waitUntilSettled(window_)) << "The host has no window.\n"
                                                          << output();
    return window_;
}

bool HostProcess::closeAndWait()
{
    if (!window_) window();
    wm::requestClose(window_);
    return wait();
}

}  // namespace kite::testing
