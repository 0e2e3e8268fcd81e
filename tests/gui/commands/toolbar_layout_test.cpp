// Where the buttons stand: to the pixel, in narrow frames, and when the user resizes the frame.

#include "commands_support.h"

using namespace kite::testing;

namespace {

constexpr int kToolbarHeight = 37;

// Buttons 1 to count, with a separator behind those named.
void addButtons(int count, const std::vector<int>& separatedBehind = {})
{
    addImage("image");
    for (int id = 1; id <= count; ++id) {
        guiToolbarButton("image", nullptr, GUI_PLAIN, id);
        for (const int behind : separatedBehind)
            if (behind == id) guiToolbarSeparator();
    }
}

void addMenu()
{
    guiMenu("Menu");
    guiMenuItem("Item", 0, GUI_PLAIN, 1);
    guiMenuEnd();
}

// Everything lies one below the other, without gaps.
void expectStacked()
{
    const Rect frame = rectOf(findWidget("v_mainwnd"));
    const Rect menuBar = rectOf(findWidget("v_menubar"));
    const Rect toolbar = rectOf(findWidget("v_toolbar"));
    const Rect scroller = rectOf(findWidget("v_scroll"));
    EXPECT_EQ(toolbar, (Rect{frame.x, menuBar.bottom(), menuBar.width, kToolbarHeight}));
    EXPECT_EQ(menuBar.width, frame.width);
    EXPECT_EQ(scroller.y, toolbar.bottom());
    EXPECT_EQ(scroller.bottom(), rectOf(findWidget("v_statusbar")).y);
    EXPECT_EQ(scroller.width, frame.width);
}

// More than a narrow frame has room for in a few rows.
void addMenus(int count)
{
    for (int menu = 0; menu < count; ++menu) {
        guiMenu("Menu title");
        guiMenuEnd();
    }
}

void expectPlaces(const std::vector<int>& lefts)
{
    const auto buttons = toolbarButtons();
    ASSERT_EQ(buttons.size(), lefts.size());
    const Rect toolbar = rectOf(findWidget("v_toolbar"));
    for (std::size_t i = 0; i < lefts.size(); ++i)
        EXPECT_EQ(rectOf(buttons[i]), (Rect{toolbar.x + lefts[i], toolbar.y + 2, 35, 33})) << i;
}

}  // namespace

GUI_STARTUP_TEST(ToolbarLayout, GapsAreLeftWhereASeparatorStands)
{
    buildThenRun(
        [] {
            addMenu();
            guiToolbarSeparator();  // before the first button: nothing
            addButtons(5, {2, 2, 4});
            guiToolbarSeparator();  // behind the last one: nothing that shows
        },
        [] {
            expectStacked();
            expectPlaces({5, 40, 80, 115, 155});
        });
}

GUI_STARTUP_TEST(ToolbarLayout, MoreButtonsThanTheFrameIsWide)
{
    Rect before;
    buildThenRun(
        [&] {
            addMenu();
            addButtons(40);
            before = rectOf(app.find("v_mainwnd"));
        },
        [&] {
            EXPECT_EQ(rectOf(app.find("v_mainwnd")), before);
            expectStacked();
            std::vector<int> lefts;
            for (int i = 0; i < 40; ++i) lefts.push_back(5 + 35 * i);
            expectPlaces(lefts);
            guiMoveWin(-1, -1, 900, 500);
            ASSERT_TRUE(pumpUntil([&] { return rectOf(app.find("v_mainwnd")).width == 900; }));
            settle();
            expectStacked();
            expectPlaces(lefts);
        });
}

GUI_STARTUP_TEST(ToolbarLayout, FollowsTheFrame)
{
    buildThenRun(
        [] {
            addMenu();
            addButtons(3);
        },
        [&] {
            for (const auto& [width, height] :
                 std::vector<std::pair<int, int>>{{700, 500}, {300, 200}, {450, 301}}) {
                guiMoveWin(-1, -1, width, height);
                const auto isResized = [&, w = width, h = height] {
                    const Rect frame = rectOf(app.find("v_mainwnd"));
                    return frame.width == w && frame.height == h;
                };
                ASSERT_TRUE(pumpUntil(isResized)) << width;
                settle();
                expectStacked();
                expectPlaces({5, 40, 75});
            }
        });
}

// The restart takes the toolbar away and its height back; a new one takes its place.
GUI_STARTUP_TEST(ToolbarLayout, OfARestart)
{
    buildThenRun(
        [] {
            addMenu();
            addButtons(3);
        },
        [&] {
            recorder.onEvent(GUI_EVENT_COMMAND, 3, [] {
                guiRestart();
                addButtons(2);
            });
            robot.click(toolbarButtons().back());
            settle();
            expectStacked();
            expectPlaces({5, 40});
            EXPECT_TRUE(isShown(toolbarButtons().front()));
            recorder.onEvent(GUI_EVENT_COMMAND, 2, [] { guiRestart(); });
            robot.click(toolbarButtons().back());
            settle();
            EXPECT_FALSE(findWidget("v_toolbar"));
            EXPECT_EQ(rectOf(app.find("v_scroll")).y, rectOf(app.find("v_menubar")).bottom());
            EXPECT_EQ(rectOf(app.find("v_scroll")).bottom(), rectOf(app.find("v_statusbar")).y);
        });
}

GUI_STARTUP_TEST(ToolbarLayout, WithoutAMenu)
{
    buildThenRun([] { addButtons(1); }, [] { expectStacked(); });
}

GUI_STARTUP_TEST(ToolbarLayout, KeepsItsHeightThroughASizeWithoutRoomForIt)
{
    buildThenRun(
        [] {
            addMenus(18);
            addButtons(2);
        },
        [] {
            for (const int height : {200, 500, 510}) {
                guiMoveWin(10, 10, height == 200 ? 300 : 600, height);
                ASSERT_TRUE(
                    pumpUntil([&] { return rectOf(findWidget("v_mainwnd")).height == height; }));
                settle();
                const Rect menuBar = rectOf(findWidget("v_menubar"));
                EXPECT_EQ(rectOf(findWidget("v_toolbar")).height, kToolbarHeight) << height;
                EXPECT_EQ(rectOf(findWidget("v_scroll")).y, menuBar.bottom() + kToolbarHeight)
                    << height;
            }
            expectStacked();
            expectPlaces({5, 40});
        });
}

GUI_STARTUP_TEST(ToolbarLayout, BelowAMenuBarHigherThanTheFrame)
{
    buildThenRun(
        [] {
            addMenus(60);
            addButtons(2);
        },
        [] {
            const Rect menuBar = rectOf(findWidget("v_menubar"));
            ASSERT_GT(menuBar.height, 300);
            EXPECT_EQ(rectOf(findWidget("v_toolbar")),
                      (Rect{menuBar.x, menuBar.bottom(), menuBar.width, kToolbarHeight}));
            EXPECT_EQ(rectOf(findWidget("v_scroll")).y, menuBar.bottom() + kToolbarHeight);
        });
}
