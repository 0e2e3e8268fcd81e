// tour_program.h: the tour, used from outside like any program.

#pragma once

#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>

#include "gui_test.h"
#include "temporary_directory.h"

namespace kite::testing {

class TourProgram {
public:
    explicit TourProgram(const Process::Environment& more = {})
    {
        std::filesystem::current_path(directory_.path());  // the tour saves there
        std::ofstream{path("profile")} << "[tour]\nlogfm = 2\nlogfn = " << path("log") << "\n";
        start(more);
    }

    // Again, once it has ended. With what is added to the environment.
    void start(const Process::Environment& more = {})
    {
        Process::Environment all{{"KITE_PROFILE", path("profile")}};
        all.insert(all.end(), more.begin(), more.end());
        program_.emplace(std::vector<std::string>{TOUR_PROGRAM}, all);
    }

    // Once it has the keyboard and takes commands; 0 when it does not come.
    Window window() const
    {
        const Window window = wm::waitForWindow("kitegui tour");
        if (!window || !waitUntilLogged("Welcome")) return 0;
        return hasMovingGauge(window) && wm::waitForFocus(window) ? window : 0;
    }

    std::string path(const std::string& name) const { return directory_.path() / name; }

    std::string contents(const std::string& name) const
    {
        std::ostringstream all;
        all << std::ifstream{path(name)}.rdbuf();
        return all.str();
    }

    bool waitUntilLogged(const std::string& text) const
    {
        return pumpUntil([&] { return contents("log").find(text) != std::string::npos; });
    }

    Process& program() { return *program_; }

private:
    // Its timer feeds it, from the main loop.
    static bool hasMovingGauge(Window window)
    {
        const auto look = [=] { return screen::grab(wm::clientRect(window)); };
        const screen::Picture before = look();
        return pumpUntil([&] { return look() != before; });
    }

    TemporaryDirectory directory_{"tour"};
    std::optional<Process> program_;
};

// Agrees to the box that comes up over the frame.
inline void agree(Window frame)
{
    ASSERT_TRUE(pumpUntil([=] { return !wm::hasFocus(frame); }));
    Robot::instance().key(XK_Return);
}

}  // namespace kite::testing
