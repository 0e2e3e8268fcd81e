#include <gtest/gtest.h>

#include "app.h"

#include "pump.h"
#include "toolkit.h"
#include "toolkit_errors.h"
#include "widgets.h"
#include "window_manager.h"

namespace kite::testing {

namespace {

constexpr int kMostWindows = 20;  // that a test leaves open

}  // namespace

App& App::instance()
{
    static App app;
    return app;
}

Widget App::shell()
{
    return guiGetTopWnd() ? toolkit::root() : nullptr;
}

void App::init()
{
    guiInit(hostCallback);
    if (!leavesWarningsToLibrary) watchToolkitErrors(toolkit::context());
    Script::instance().arm();
    EXPECT_TRUE(pumpUntil([this] { return isShown(shell()) && wm::isSettled(shell()); }))
        << "The frame is not on the screen.";
    EXPECT_TRUE(wm::waitForFocus(shell())) << "The frame has no keyboard focus.";
    settle();
}

bool App::isReady()
{
    Widget const frame = shell();
    return frame && isShown(frame) && wm::isSettled(frame) && wm::hasFocus(frame);
}

int App::run(const std::function<void()>& body)
{
    if (!guiGetTopWnd()) init();
    bool hasRun = false;
    Script::instance().when(
        "the main loop runs", [this] { return isReady(); },
        [&] {
            hasRun = true;
            body();
            Script::instance().finish();  // before the frame goes: a failure shows it
            closeAll();
        });
    const int result = guiStart(windowHandler);
    EXPECT_TRUE(hasRun) << "The main loop has ended before the test began.";
    return result;
}

void App::closeAll()
{
    for (int i = 0; i < kMostWindows && guiGetTopWnd(); ++i) guiClose(0);
}

void App::whenShown(const std::string& name, const std::function<void(Shown)>& action)
{
    Script::instance().whenShown(name, action);
}

void App::when(const std::string& description, Condition condition, Action action)
{
    Script::instance().when(description, std::move(condition), std::move(action));
}

Widget App::find(const std::string& name)
{
    Widget const widget = findWidget(name);
    if (!widget) ADD_FAILURE() << "There is no widget " << name;
    return widget;
}

void App::click(const std::string& name)
{
    if (Widget const widget = find(name)) Robot::instance().click(widget);
}

void App::key(KeySym symbol, unsigned modifiers)
{
    Robot::instance().keyHandled(symbol, modifiers);
}

void App::type(std::string_view utf8)
{
    Robot::instance().typeHandled(utf8);
}

bool App::waitForEvent(const Event& event)
{
    return pumpUntil([&] { return Recorder::instance().count(event) > 0; });
}

void App::finish()
{
    Recorder::instance().forgetReactions();
    Script::instance().finish();
    if (!guiGetTopWnd()) return;
    Script::instance().when(
        "the main loop runs", [] { return true; }, [this] { closeAll(); });
    guiStart(nullptr);
}

}  // namespace kite::testing
