// tour_gallery: drives the tour with real keys and clicks on the display it is started on, names each
// step, and writes a picture of it. Arguments: the directory for the pictures, and the tour.

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "environment.h"
#include "process.h"
#include "pump.h"
#include "robot.h"
#include "screen.h"
#include "window_manager.h"

namespace {

using namespace kite::testing;

constexpr char kFrame[] = "kitegui tour";
constexpr milliseconds kQuiet{300};  // a screen that stays as it is for so long is finished

Robot& robot()
{
    return Robot::instance();
}

void press(KeySym key)
{
    robot().key(key);
}

struct Step {
    std::string picture;
    std::string what;
    std::function<void()> act;
};

// The timer would change the screen for ever: it goes first, and is stopped.
const std::vector<Step>& steps()
{
    static const std::vector<Step> all{
        {"timer", "F9 stops the timer that feeds the gauge", [] { press(XK_F9); }},
        {"information", "F1 shows an information", [] { press(XK_F1); }},
        {"information-read", "Return: it was read", [] { press(XK_Return); }},
        {"error", "F2 shows an error", [] { press(XK_F2); }},
        {"error-read", "Return again", [] { press(XK_Return); }},
        {"tip", "F3 shows a note at the pointer", [] { press(XK_F3); }},
        {"tip-left", "the pointer leaves it",
         [] {
             robot().moveTo(Point{300, 300});
         }},
        {"ok-cancel", "F4 asks for OK or Cancel", [] { press(XK_F4); }},
        {"ok-cancel-answered", "Escape is Cancel", [] { press(XK_Escape); }},
        {"yes-no", "F5 asks for Yes or No", [] { press(XK_F5); }},
        {"yes-no-answered", "Return is Yes", [] { press(XK_Return); }},
        {"yes-no-cancel", "F6 asks for Yes, No or Cancel", [] { press(XK_F6); }},
        {"yes-no-cancel-answered", "Escape is Cancel", [] { press(XK_Escape); }},
        {"text", "F7 asks for a text", [] { press(XK_F7); }},
        {"text-typed", "a name is typed", [] { robot().type(" Lovelace"); }},
        {"text-answered", "Return is OK", [] { press(XK_Return); }},
        {"hidden-text", "F8 asks for a text that stays hidden", [] { press(XK_F8); }},
        {"hidden-text-answered", "a secret and Return",
         [] {
             robot().type("secret");
             press(XK_Return);
         }},
        {"plug-in", "F10 runs a plug-in", [] { press(XK_F10); }},
        {"moved", "F11 moves the frame", [] { press(XK_F11); }},
        {"nested-outer", "F12 asks before it nests", [] { press(XK_F12); }},
        {"nested-inner", "Yes: a box on a box", [] { press(XK_Return); }},
        {"nested-answered", "Return closes both", [] { press(XK_Return); }},
        {"closing", "the window manager asks to close the frame",
         [] { wm::close(wm::waitForWindow(kFrame)); }},
    };
    return all;
}

bool waitUntilChanged(const screen::Picture& before)
{
    return pumpUntil([&] { return screen::grab() != before; });
}

screen::Picture finishedScreen()
{
    screen::Picture latest = screen::grab();
    while (!holdsFor([&] { return screen::grab() == latest; }, kQuiet)) latest = screen::grab();
    return latest;
}

class Gallery {
public:
    explicit Gallery(std::filesystem::path directory) : directory_(std::move(directory)) {}

    // False when the step changed nothing on the screen.
    bool show(const Step& step)
    {
        const screen::Picture before = screen::grab();
        step.act();
        const bool isDone = waitUntilChanged(before);
        save(step, finishedScreen());
        if (!isDone) std::puts("   ... which changed nothing on the screen");
        return isDone;
    }

    void save(const Step& step, const screen::Picture& picture)
    {
        const std::string number = std::to_string(100 + ++count_).substr(1);
        const auto path = directory_ / ("tour-" + number + "-" + step.picture + ".png");
        std::printf("%s: %s\n", path.filename().c_str(), step.what.c_str());
        std::fflush(stdout);
        if (!picture.savePng(path)) std::printf("   ... which could not be written\n");
    }

private:
    std::filesystem::path directory_;
    int count_ = 0;
};

// Leaves with the Return that answers the question.
bool leave(Process& tour)
{
    press(XK_Return);
    if (!tour.wait() || tour.exitStatus() != 0) {
        std::puts("The tour did not end as it should");
        return false;
    }
    std::puts("Return: the tour has ended");
    return true;
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::puts("usage: tour_gallery DIRECTORY TOUR");
        return 2;
    }
    // The robot works on a display of its own only; scripts/demo has started one.
    setenv("KITE_TEST_DISPLAY", environment("DISPLAY").c_str(), 1);
    Gallery gallery{argv[1]};
    Process tour{{argv[2]}, {{"KITE_PROFILE", "/dev/null"}}};
    Window const frame = wm::waitForWindow(kFrame);
    if (!frame || !wm::waitForFocus(frame)) {
        std::puts("The tour did not start");
        return 1;
    }
    robot().moveTo(wm::clientRect(frame).centre());
    gallery.save({"frame", "the frame, its gauge fed by a timer", {}}, screen::grab());
    bool isComplete = true;
    for (const Step& step : steps()) isComplete = gallery.show(step) && isComplete;
    return leave(tour) && isComplete ? 0 : 1;
}
