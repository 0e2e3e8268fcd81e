#include "tour_under_test.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <fstream>

#include "connection.h"
#include "environment.h"
#include "pump.h"
#include "robot.h"
#include "window_manager.h"

namespace kite::testing {

namespace {

constexpr char kTitle[] = "kitegui tour";

// File boxes are among what is played with: nobody's files may be written to.
std::vector<std::string> command()
{
    if (geteuid() != 0) return {TOUR_PROGRAM};
    return {"setpriv", "--reuid=65534", "--regid=65534", "--clear-groups", TOUR_PROGRAM};
}

Process::Environment environmentIn(const std::string& directory)
{
    // The sanitizers would like to be loaded before anything else.
    const std::string sanitizer = environment("ASAN_OPTIONS") + ":verify_asan_link_order=0";
    return {{"KITE_PROFILE", directory + "/profile"},
            {"HOME", directory},
            {"LD_PRELOAD", TOLD_WARNINGS},
            {"GCOV_PREFIX", directory},  // where a build that records coverage may write
            {"ASAN_OPTIONS", sanitizer}};
}

}  // namespace

TourUnderTest::TourUnderTest()
{
    const std::filesystem::path directory = directory_.path();
    std::filesystem::permissions(directory, std::filesystem::perms::all);
    std::filesystem::current_path(directory);
    std::ofstream{directory / "profile"} << "[tour]\nmouse_hover = 0.01\nlogfm = 1\n";
    std::ofstream{directory / "a text.txt"} << "Something to open\n";
    std::filesystem::create_directories(directory / "letters/old");
    XDisableAccessControl(connection());  // for another user's client
}

bool TourUnderTest::start()
{
    process_ = std::make_unique<Process>(command(), environmentIn(directory_.path()));
    frame_ = wm::waitForWindow(kTitle);
    EXPECT_TRUE(frame_) << "The tour did not start: " << process_->output();
    return frame_ != 0;
}

bool TourUnderTest::owns(Window window) const
{
    constexpr Window kClientMask = ~Window{0x1FFFFF};
    return ((window ^ frame_) & kClientMask) == 0;
}

void TourUnderTest::expectCleanEnd()
{
    EXPECT_EQ(process_->exitStatus(), 0);
    EXPECT_EQ(process_->output(), "");
}

// Escape cancels menus, boxes and dialogs; the frame asks whether to leave, and Return agrees.
bool TourUnderTest::leave()
{
    constexpr int kMostTries = 20;
    constexpr int kDeepest = 5;
    constexpr milliseconds kPause{150};
    const auto press = [&](KeySym symbol) {
        Robot::instance().key(symbol);
        process_->wait(kPause);
    };
    for (int i = 0; i < kMostTries && isRunning(); ++i) {
        for (int window = 0; window < kDeepest; ++window) press(XK_Escape);
        if (isViewable(frame_))
            wm::requestClose(frame_);
        else
            wm::deiconify(frame_);
        process_->wait(kPause);
        press(XK_Return);
    }
    return !isRunning();
}

}  // namespace kite::testing
