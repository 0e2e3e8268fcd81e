// host_process.h: the program frame_host, run and looked at from outside.
//
//     HostFiles files;
//     files.setProfile("logfm = 1\n");
//     HostProcess program{files};
//     wm::closeByDecoration(program.window());
//     ASSERT_TRUE(program.wait());

#pragma once

#include <optional>
#include <string>
#include <vector>

#include "process.h"
#include "temporary_directory.h"
#include "window_manager.h"

namespace kite::testing {

// What outlives a run: the profile and the log.
class HostFiles {
public:
    void setProfile(const std::string& lines) const;
    std::optional<int> savedInt(const std::string& key) const;

    std::string path(const std::string& name) const { return directory_.path() / name; }
    std::string contents(const std::string& name) const;

    // With "T" for each date and time.
    std::string log(const std::string& name = "output.log") const;

private:
    TemporaryDirectory directory_{"host"};
};

class HostProcess : public Process {
public:
    explicit HostProcess(const HostFiles& files, const std::vector<std::string>& arguments = {},
                         const Environment& environment = {});

    // Once it is on the screen, managed and decorated; 0 when it does not come.
    Window window();

    // As a taskbar closes it, also an icon; true when the program has ended.
    bool closeAndWait();

private:
    Window window_ = 0;
};

}  // namespace kite::testing
