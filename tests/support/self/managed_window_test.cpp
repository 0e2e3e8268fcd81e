// managed_window_test.cpp: what only a window manager can do.

#include "gui_test.h"

#include "probe_window.h"

using namespace kite::testing;

GUI_TEST(WindowManager, IconifiesAndBringsBack)
{
    Widget const frame = app.shell();
    wm::iconify(frame);
    EXPECT_TRUE(pumpUntil([&] { return wm::stateOf(frame) == wm::State::Iconic; }));
    EXPECT_FALSE(isShown(frame));
    wm::deiconify(frame);
    EXPECT_TRUE(pumpUntil([&] { return wm::stateOf(frame) == wm::State::Normal; }));
    EXPECT_TRUE(wm::waitUntilSettled(frame));
}

GUI_TEST(WindowManager, IconifiesByMouse)
{
    Widget const frame = app.shell();
    wm::iconifyByDecoration(frame);
    EXPECT_TRUE(pumpUntil([&] { return wm::stateOf(frame) == wm::State::Iconic; }));
}

GUI_TEST(WindowManager, MovesTheFrameByItsTitle)
{
    Widget const frame = app.shell();
    const Rect before = wm::frameRect(frame);
    wm::moveTo(frame, {before.x + 40, before.y - 30});
    EXPECT_TRUE(pumpUntil([&] { return wm::frameRect(frame).x == before.x + 40; }))
        << wm::frameRect(frame);
    EXPECT_TRUE(pumpUntil([&] { return wm::frameRect(frame).y == before.y - 30; }))
        << wm::frameRect(frame);
}

GUI_TEST(WindowManager, GivesTheFocusToTheWindowThatIsActivated)
{
    ProbeWindow window;
    EXPECT_TRUE(wm::hasFocus(window.box));
    wm::activate(app.shell());
    EXPECT_TRUE(wm::waitForFocus(app.shell()));
}
