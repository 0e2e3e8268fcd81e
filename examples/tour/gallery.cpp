// tour_gallery: drives the tour with real keys and clicks on the display it is started on, names each
// step, and writes a picture of it. Arguments: the directory for the pictures, the tour, and an X resource file
// if it is to look otherwise.

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "environment.h"
#include "gallery_steps.h"
#include "process.h"
#include "pump.h"
#include "robot.h"
#include "screen.h"
#include "temporary_directory.h"
#include "window_manager.h"

namespace {

using namespace kite::testing;

constexpr milliseconds kQuiet{300};        // a screen that stays as it is for so long is finished
constexpr milliseconds kFirstPaint{1000};  // the gauge moves: the screen is never quiet

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
    bool show(const tour::Step& step)
    {
        const screen::Picture before = screen::grab();
        step.act();
        const bool isDone = waitUntilChanged(before);
        save(step, finishedScreen());
        if (!isDone) std::puts("   ... which changed nothing on the screen");
        return isDone;
    }

    void save(const tour::Step& step, const screen::Picture& picture)
    {
        const std::string number = std::to_string(1000 + ++count_).substr(1);
        const auto path = directory_ / ("tour-" + number + "-" + step.picture + ".png");
        std::printf("%s: %s\n", path.filename().c_str(), step.what.c_str());
        std::fflush(stdout);
        if (!picture.savePng(path)) std::printf("   ... which could not be written\n");
    }

private:
    std::filesystem::path directory_;
    int count_ = 0;
};

// Insertion cursors that blink would change the screen for ever.
void writeResources(const std::string& file, const std::filesystem::path& look)
{
    std::ofstream resources{file};
    if (!look.empty()) resources << std::ifstream{look}.rdbuf();
    resources << "*blinkRate: 0\n";
}

// What the tour shows of its current directory.
void writeSomeFiles()
{
    for (const char* const file :
         {"letters/gas-company.txt", "letters/grandmother.txt", "music/bach/chaconne.mid",
          "music/bach/invention.mid", "music/folk.mid", "recipes/bread.txt"}) {
        const std::filesystem::path path{file};
        std::filesystem::create_directories(path.parent_path());
        std::ofstream{path} << "Written for the tour: " << file << '\n';
    }
}

// Leaves with the Return that answers the question.
bool leave(Process& tour)
{
    Robot::instance().key(XK_Return);
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
    if (argc < 3 || argc > 4) {
        std::puts("usage: tour_gallery DIRECTORY TOUR [RESOURCES]");
        return 2;
    }
    // The robot works on a display of its own only; scripts/demo has started one.
    setenv("KITE_TEST_DISPLAY", environment("DISPLAY").c_str(), 1);
    Gallery gallery{std::filesystem::absolute(argv[1])};
    const std::string program = std::filesystem::absolute(argv[2]);
    const auto look = argc == 4 ? std::filesystem::absolute(argv[3]) : std::filesystem::path{};
    const TemporaryDirectory files{"gallery"};  // what the tour saves
    std::filesystem::current_path(files.path());
    writeSomeFiles();
    const std::string resources = files.path() / "resources";
    writeResources(resources, look);
    Process tour{{program}, {{"KITE_PROFILE", "/dev/null"}, {"XENVIRONMENT", resources}}};
    Window const frame = wm::waitForWindow(tour::kFrameTitle);
    if (!frame || !wm::waitForFocus(frame)) {
        std::puts("The tour did not start");
        return 1;
    }
    Robot::instance().moveTo(wm::clientRect(frame).centre());
    holdsFor([] { return true; }, kFirstPaint);
    gallery.save({"frame", "the frame, its gauge fed by a timer", {}}, screen::grab());
    bool isComplete = true;
    for (const tour::Step& step : tour::gallerySteps())
        isComplete = gallery.show(step) && isComplete;
    return leave(tour) && isComplete ? 0 : 1;
}
