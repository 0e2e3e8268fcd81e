// host_double.h: the seven host services of a test: a profile in memory, an application directory of
// its own, and a record of the commands that were to be run.
//
//     host.addFile("images/icon.bmp", bytes);
//     host.setExecResult(-1);
//     EXPECT_THAT(host.commands(), ElementsAre(ExecCall{"lp -c /tmp/x", 1, 1}));

#pragma once

#include <filesystem>
#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

#include "profile.h"
#include "temporary_directory.h"

namespace kite::testing {

struct ExecCall {
    std::string command;
    int flag1 = 0;
    int flag2 = 0;

    bool operator==(const ExecCall&) const = default;
};

std::ostream& operator<<(std::ostream& out, const ExecCall& call);

class HostDouble {
public:
    static HostDouble& instance();

    Profile& profile() { return profile_; }

    // Empty at the start, gone when the process ends.
    const std::filesystem::path& appDir() const { return directory_.path(); }

    // The same under the name that the host gives it; before the library has asked for it.
    const std::string& appDirName() const { return appDirName_; }
    void setAppDirName(const std::string& name) { appDirName_ = name; }

    // The host knows no full names: null.
    void forgetFullNames() { knowsFullNames_ = false; }
    bool knowsFullNames() const { return knowsFullNames_; }

    // Makes a file below the application directory, with the folders that it needs.
    std::filesystem::path addFile(const std::string& name, const std::string& contents);

    const std::vector<ExecCall>& commands() const { return commands_; }
    void setExecResult(int result) { execResult_ = result; }
    void onExec(std::function<int(const std::string& command)> action)
    {
        onExec_ = std::move(action);
    }

    int exec(const std::string& command, int flag1, int flag2);

private:
    HostDouble() = default;

    Profile profile_;
    TemporaryDirectory directory_{"app"};
    std::string appDirName_ = directory_.path().string() + '/';
    bool knowsFullNames_ = true;
    std::vector<ExecCall> commands_;
    std::function<int(const std::string&)> onExec_;  // takes the place of the fixed result
    int execResult_ = 0;
};

}  // namespace kite::testing
