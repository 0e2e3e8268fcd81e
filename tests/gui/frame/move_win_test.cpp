// guiMoveWin, with a window manager that has a word in it.

#include "gui_test.h"

using namespace kite::testing;

namespace {

// The corner of the decoration, with the size of what is inside.
Rect place()
{
    Widget const frame = toolkit::root();
    const Rect outside = wm::frameRect(frame);
    const Rect inside = wm::clientRect(frame);
    return {outside.x, outside.y, inside.width, inside.height};
}

::testing::AssertionResult comesTo(const Rect& wanted)
{
    if (pumpUntil([&] { return place() == wanted; })) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "wanted " << wanted << ", is at " << place();
}

bool isIconic()
{
    return pumpUntil([] { return wm::stateOf(toolkit::root()) == wm::State::Iconic; });
}

bool isNormal()
{
    return pumpUntil([] { return wm::isSettled(toolkit::root()); });
}

}  // namespace

GUI_TEST(MoveWin, PlacesTheFrame)
{
    EXPECT_EQ(guiMoveWin(200, 150, 500, 400), 0);
    EXPECT_TRUE(comesTo({200, 150, 500, 400}));
    EXPECT_EQ(guiMoveWin(0, 0, 600, 350), 0);
    EXPECT_TRUE(comesTo({0, 0, 600, 350}));
}

GUI_TEST(MoveWin, NegativeKeepsEachValue)
{
    guiMoveWin(200, 150, 500, 400);
    ASSERT_TRUE(comesTo({200, 150, 500, 400}));
    guiMoveWin(-1, 100, 520, 410);
    EXPECT_TRUE(comesTo({200, 100, 520, 410}));
    guiMoveWin(220, -1, 530, 420);
    EXPECT_TRUE(comesTo({220, 100, 530, 420}));
    guiMoveWin(250, 50, -1, 430);
    EXPECT_TRUE(comesTo({250, 50, 530, 430}));
    guiMoveWin(300, 200, 540, -1);
    EXPECT_TRUE(comesTo({300, 200, 540, 430}));
}

GUI_TEST(MoveWin, SamePlaceAgainIsTheSamePlace)
{
    for (int i = 0; i < 3; ++i) {
        guiMoveWin(200, 150, 500, 400);
        EXPECT_TRUE(comesTo({200, 150, 500, 400})) << i;
        settle();
    }
}

// The shell's coordinates are those of the client, the decoration stands further out.
GUI_TEST(MoveWin, PlaceOfTheClientIsANewPlaceForTheDecoration)
{
    guiMoveWin(200, 150, 500, 400);
    ASSERT_TRUE(comesTo({200, 150, 500, 400}));
    const Rect client = wm::clientRect(app.shell());
    ASSERT_TRUE(pumpUntil([&] {
        return resource<Position>(app.shell(), XmNx) == client.x &&
               resource<Position>(app.shell(), XmNy) == client.y;
    }));
    guiMoveWin(client.x, client.y, 500, 400);
    EXPECT_TRUE(comesTo({client.x, client.y, 500, 400}));
}

GUI_TEST(MoveWin, NegativeXAndHeightKeepBoth)
{
    guiMoveWin(200, 150, 500, 400);
    ASSERT_TRUE(comesTo({200, 150, 500, 400}));
    guiMoveWin(-1, 20, 500, -1);
    EXPECT_TRUE(comesTo({200, 20, 500, 400}));
}

GUI_TEST(MoveWin, AllNegativeKeepsAll)
{
    guiMoveWin(200, 150, 500, 400);
    ASSERT_TRUE(comesTo({200, 150, 500, 400}));
    EXPECT_EQ(guiMoveWin(-1, -1, -1, -1), 0);
    EXPECT_EQ(guiMoveWin(-100, -200, -300, -400), 0);
    settle();
    EXPECT_TRUE(comesTo({200, 150, 500, 400}));
    EXPECT_TRUE(isNormal());
}

GUI_TEST(MoveWin, ZeroWidthIconifies)
{
    EXPECT_EQ(guiMoveWin(-1, -1, 0, 100), 0);
    EXPECT_TRUE(isIconic());
}

GUI_TEST(MoveWin, ZeroHeightIconifies)
{
    EXPECT_EQ(guiMoveWin(10, 10, 100, 0), 0);
    EXPECT_TRUE(isIconic());
}

GUI_TEST(MoveWin, ZeroSizeWinsOverNegativeSize)
{
    guiMoveWin(10, 10, -1, 0);
    EXPECT_TRUE(isIconic());
}

GUI_TEST(MoveWin, IconifyingLeavesTheSize)
{
    guiMoveWin(200, 150, 500, 400);
    ASSERT_TRUE(comesTo({200, 150, 500, 400}));
    guiMoveWin(0, 0, 0, 0);
    ASSERT_TRUE(isIconic());
    guiMoveWin(-1, -1, -1, -1);
    ASSERT_TRUE(isNormal());
    EXPECT_EQ(wm::clientRect(app.shell()).width, 500);
    EXPECT_EQ(wm::clientRect(app.shell()).height, 400);
}

GUI_TEST(MoveWin, RestoresFromTheIcon)
{
    guiMoveWin(0, 0, 0, 0);
    ASSERT_TRUE(isIconic());
    guiMoveWin(120, 90, 480, 360);
    ASSERT_TRUE(isNormal());
    EXPECT_TRUE(comesTo({120, 90, 480, 360}));
}

GUI_TEST(MoveWin, RestoresWhatTheUserIconified)
{
    wm::iconifyByDecoration(app.shell());
    ASSERT_TRUE(isIconic());
    EXPECT_EQ(guiMoveWin(-1, -1, 480, 360), 0);
    ASSERT_TRUE(isNormal());
    EXPECT_TRUE(pumpUntil([&] { return wm::clientRect(app.shell()).width == 480; }));
    EXPECT_EQ(wm::clientRect(app.shell()).height, 360);
}

GUI_TEST(MoveWin, RestoresAgainAndAgain)
{
    for (int i = 0; i < 3; ++i) {
        guiMoveWin(0, 0, 0, 0);
        ASSERT_TRUE(isIconic()) << i;
        guiMoveWin(100 + 50 * i, 100, 400, 300);
        ASSERT_TRUE(isNormal()) << i;
        EXPECT_TRUE(comesTo({100 + 50 * i, 100, 400, 300})) << i;
    }
}

// The library has not heard of the manager's change when it is asked for the next one.
GUI_TEST(MoveWin, IconifiesWhatTheUserHasJustBroughtBack)
{
    guiMoveWin(0, 0, 0, 0);
    ASSERT_TRUE(isIconic());
    settle();
    wm::deiconify(toolkit::root());
    ASSERT_TRUE(waitUntil([] { return wm::isSettled(toolkit::root()); }));
    guiMoveWin(0, 0, 0, 0);
    EXPECT_TRUE(isIconic());
}

GUI_TEST(MoveWin, ShellWithoutAWindowIsLeftAlone)
{
    Widget const shell = app.shell();
    XtUnrealizeWidget(shell);
    EXPECT_EQ(guiMoveWin(200, 150, 500, 400), 0);
    EXPECT_EQ(guiMoveWin(0, 0, 0, 0), 0);
    XtRealizeWidget(shell);
    ASSERT_TRUE(isNormal());
}

GUI_STARTUP_TEST(MoveWin, WorksBeforeTheStart)
{
    app.init();
    EXPECT_EQ(guiMoveWin(200, 150, 500, 400), 0);
    EXPECT_TRUE(comesTo({200, 150, 500, 400}));
}

GUI_TEST(MoveWin, RaisesNoEvent)
{
    recorder.clear();
    guiMoveWin(200, 150, 500, 400);
    ASSERT_TRUE(comesTo({200, 150, 500, 400}));
    EXPECT_TRUE(recorder.events().empty());
}
