// The frame's place from one run to the next, under real decorations.

#include "connection.h"
#include "frame_checks.h"
#include "gui_test.h"

using namespace kite::testing;

namespace {

Rect savedPlace()
{
    const Profile& profile = HostDouble::instance().profile();
    const auto value = [&](const char* key) { return profile.intOf(key).value_or(-1); };
    return {value("mwndx"), value("mwndy"), value("mwndw"), value("mwndh")};
}

Rect outside()
{
    return wm::frameRect(toolkit::root());
}

// True when the application has heard from the window manager where its frame is.
bool isToldItsPlace()
{
    Widget const frame = toolkit::root();
    return pumpUntil([&] {
        const Rect inside = wm::clientRect(frame);
        return resource<Position>(frame, XmNx) == inside.x &&
               resource<Position>(frame, XmNy) == inside.y;
    });
}

bool dragTo(Point corner)
{
    wm::moveTo(toolkit::root(), corner);
    return pumpUntil([&] { return Point{outside().x, outside().y} == corner; }) && isToldItsPlace();
}

}  // namespace

GUI_TEST(SavedPlace, DecorationIsKnownWhileTheFrameRuns)
{
    const Window parent = parentOf(windowOf(app.shell()));
    EXPECT_TRUE(pumpUntil([&] { return static_cast<Window>(decorWindow) == parent; }));
}

GUI_STARTUP_TEST(SavedPlace, FrameOpensThere)
{
    savePlace({120, 90, 640, 480});
    app.run([&] {
        EXPECT_EQ(outside().x, 120);
        EXPECT_EQ(outside().y, 90);
        EXPECT_EQ(wm::clientRect(app.shell()).width, 640);
        EXPECT_EQ(wm::clientRect(app.shell()).height, 480);
    });
}

GUI_STARTUP_TEST(SavedPlace, IsThatOfTheDecorationWithTheSizeInside)
{
    Rect expected;
    app.run([&] {
        ASSERT_TRUE(dragTo({210, 140}));
        const Rect inside = wm::clientRect(app.shell());
        expected = {210, 140, inside.width, inside.height};
    });
    EXPECT_EQ(savedPlace(), expected);
}

GUI_STARTUP_TEST(SavedPlace, SurvivesTheWindowManagersCloseBox)
{
    Rect expected;
    recorder.onEvent(GUI_EVENT_COMMAND, GUI_COMMAND_CLOSE, [] { guiClose(0); });
    app.run([&] {
        ASSERT_TRUE(dragTo({180, 130}));
        const Rect inside = wm::clientRect(app.shell());
        expected = {180, 130, inside.width, inside.height};
        wm::closeByDecoration(app.shell());
        EXPECT_TRUE(pumpUntil([] { return guiGetTopWnd() == nullptr; }));
    });
    EXPECT_EQ(savedPlace(), expected);
}

GUI_STARTUP_TEST(SavedPlace, OfAMovedFrameIsWhereTheHostPutIt)
{
    app.run([&] {
        guiMoveWin(200, 150, 500, 400);
        ASSERT_TRUE(pumpUntil([&] { return outside().x == 200 && outside().y == 150; }));
        ASSERT_TRUE(isToldItsPlace());
    });
    EXPECT_EQ(savedPlace(), (Rect{200, 150, 500, 400}));
}

GUI_STARTUP_TEST(SavedPlace, StaysAsItWasWhenTheHostIconifies)
{
    app.run([&] {
        guiMoveWin(0, 0, 0, 0);
        ASSERT_TRUE(pumpUntil([&] { return wm::stateOf(app.shell()) == wm::State::Iconic; }));
    });
    EXPECT_TRUE(host.profile().writes().empty());
}

GUI_STARTUP_TEST(SavedPlace, StaysAsItWasWhenTheUserIconifies)
{
    app.run([&] {
        wm::iconifyByDecoration(app.shell());
        ASSERT_TRUE(pumpUntil([&] { return wm::stateOf(app.shell()) == wm::State::Iconic; }));
        settle();
    });
    EXPECT_TRUE(host.profile().writes().empty());
}

GUI_STARTUP_TEST(SavedPlace, IsSavedAgainAfterTheIconIsOpened)
{
    app.run([&] {
        wm::iconify(app.shell());
        ASSERT_TRUE(pumpUntil([&] { return wm::stateOf(app.shell()) == wm::State::Iconic; }));
        wm::deiconify(app.shell());
        ASSERT_TRUE(wm::waitUntilSettled(app.shell()));
        settle();
    });
    EXPECT_EQ(host.profile().writes().size(), 4U);
}

// The window manager has not answered yet when the frame goes.
GUI_STARTUP_TEST(SavedPlace, OfAFrameClosedAtOnceIsWhereTheHostPutIt)
{
    app.run([] {
        guiMoveWin(200, 150, 500, 400);
        guiMoveWin(-1, 140, -1, -1);
        guiClose(0);
    });
    EXPECT_EQ(savedPlace(), (Rect{200, 140, 500, 400}));
}

GUI_STARTUP_TEST(SavedPlace, OfAFrameMadeTooSmallIsTheLeastSize)
{
    app.run([] {
        guiMoveWin(200, 150, 100, 50);
        guiClose(0);
    });
    EXPECT_EQ(savedPlace(), (Rect{200, 150, 300, 200}));
}

GUI_STARTUP_TEST(SavedPlace, OfAFrameThatTheUserMovesLaterIsTheUsers)
{
    Rect expected;
    app.run([&] {
        guiMoveWin(200, 150, 500, 400);
        ASSERT_TRUE(pumpUntil([] { return outside().x == 200 && outside().y == 150; }));
        ASSERT_TRUE(isToldItsPlace());
        ASSERT_TRUE(dragTo({260, 190}));
        expected = {260, 190, 500, 400};
    });
    EXPECT_EQ(savedPlace(), expected);
}

// A host with a loop of its own opens the next frame in the same session.
GUI_STARTUP_TEST(SavedPlace, OfAFrameClosedAtOnceIsNotTakenForTheLastOnes)
{
    app.init();
    ASSERT_TRUE(pumpUntil([] { return decorWindow != 666; }));
    guiClose(0);
    savePlace({120, 90, 450, 300});
    guiInit(Recorder::hostCallback());
    EXPECT_EQ(decorWindow, 666);
    guiClose(0);
    EXPECT_EQ(savedPlace().x, 120);
    EXPECT_EQ(savedPlace().y, 90);
}
