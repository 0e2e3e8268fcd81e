// Scrolling a list: each way is reported with the first item that is shown then.

#include <Xm/ScrollBar.h>

#include "list_controls_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

constexpr int kList = 5;
constexpr int kItems = 40;
constexpr int kInArrow = 4;    // pixels from an end of the bar
constexpr int kInTrough = 16;  // the same, when the slider is at the other end

void runList(const std::function<void(Shown)>& use, int items = kItems)
{
    setDialogFont(kSmallFont);
    App::instance().run([&] {
        runDialog({.build = [&] { guiList(kList, 0, 8, 0, 80, GUI_BROWSE); },
                   .fill = [&] { appendItems(kList, items); },
                   .use = use});
    });
}

int shownItems()
{
    return resource<int>(listOf(kList), XmNvisibleItemCount);
}

Point onBar(int fromTop)
{
    const Rect bar = rectOf(verticalBarOf(kList));
    return {bar.width / 2, fromTop >= 0 ? fromTop : bar.height + fromTop};
}

void clickBar(int fromTop)
{
    Robot::instance().click(verticalBarOf(kList), LeftButton, onBar(fromTop));
}

// Each event names the item on top at its time; the last one that of the end.
void expectScroll(const std::string& what, const std::function<void()>& action, int top)
{
    SCOPED_TRACE(what);
    std::vector<int> tops;
    Recorder::instance().onEvent(GUI_EVENT_SCROLLED, kList,
                                 [&] { tops.push_back(guiGetTop(kList)); });
    const auto events = only(GUI_EVENT_SCROLLED, eventsDuring(action));
    ASSERT_FALSE(events.empty());
    ASSERT_EQ(events.size(), tops.size());
    for (std::size_t i = 0; i < events.size(); ++i) EXPECT_EQ(events[i], scrolled(kList, tops[i]));
    EXPECT_EQ(events.back(), scrolled(kList, top));
    EXPECT_EQ(topOf(kList), top);
    Recorder::instance().onEvent(GUI_EVENT_SCROLLED, kList, [] {});
}

}  // namespace

GUI_STARTUP_TEST(ListScroll, ByTheArrowsOfTheBar)
{
    runList([](Shown) {
        for (const int top : {1, 2, 3})
            EXPECT_THAT(eventsDuring([] { clickBar(-kInArrow); }),
                        ElementsAre(scrolled(kList, top)));
        for (const int top : {2, 1, 0})
            EXPECT_THAT(eventsDuring([] { clickBar(kInArrow); }),
                        ElementsAre(scrolled(kList, top)));
        EXPECT_EQ(guiGetTop(kList), 0);
    });
}

GUI_STARTUP_TEST(ListScroll, ByAnArrowThatIsHeld)
{
    runList([this](Shown) {
        robot.moveTo(verticalBarOf(kList), onBar(-kInArrow));
        expectScroll(
            "held",
            [this] {
                robot.press();
                EXPECT_TRUE(pumpUntil([] { return topOf(kList) == kItems - shownItems(); }));
                robot.release();
            },
            kItems - shownItems());
        EXPECT_EQ(recorder.count(GUI_EVENT_SCROLLED), kItems - shownItems());
    });
}

GUI_STARTUP_TEST(ListScroll, ByTheTroughOfTheBar)
{
    runList([](Shown) {
        const int page = shownItems() - 1;
        expectScroll(
            "down", [] { clickBar(-kInTrough); }, page);
        expectScroll(
            "down", [] { clickBar(-kInTrough); }, 2 * page);
        expectScroll(
            "up", [] { clickBar(kInTrough); }, page);
        expectScroll(
            "up", [] { clickBar(kInTrough); }, 0);
    });
}

GUI_STARTUP_TEST(ListScroll, ToTheEndsByAnArrowWithControl)
{
    runList([this](Shown) {
        robot.keyDown(XK_Control_L);
        expectScroll(
            "bottom", [] { clickBar(-kInArrow); }, kItems - shownItems());
        expectScroll(
            "top", [] { clickBar(kInArrow); }, 0);
        robot.keyUp(XK_Control_L);
    });
}

// While it is dragged as well as when it is let go.
GUI_STARTUP_TEST(ListScroll, ByTheSliderOfTheBar)
{
    runList([this](Shown) {
        robot.moveTo(verticalBarOf(kList), onBar(kInTrough));
        for (const int way : {15, 30, 45}) {
            SCOPED_TRACE(way);
            const int before = topOf(kList);
            const auto events = eventsDuring([&] {
                if (way == 15) robot.press();
                robot.moveTo(verticalBarOf(kList), onBar(kInTrough + way));
                EXPECT_TRUE(pumpUntil([&] { return topOf(kList) > before; }));
            });
            ASSERT_FALSE(events.empty());
            EXPECT_EQ(events.back(), scrolled(kList, guiGetTop(kList)));
        }
        expectScroll(
            "let go", [this] { robot.release(); }, topOf(kList));
    });
}

GUI_STARTUP_TEST(ListScroll, ByTheWheelOnTheListAndOnTheBar)
{
    runList([this](Shown) {
        for (Widget const target : {listOf(kList), verticalBarOf(kList)}) {
            SCOPED_TRACE(XtName(target));
            expectScroll(
                "down", [&] { robot.wheel(target, 1); }, 3);
            expectScroll(
                "down twice", [&] { robot.wheel(target, 2); }, 9);
            expectScroll(
                "up", [&] { robot.wheel(target, -3); }, 0);
            EXPECT_THAT(eventsDuring([&] { robot.wheel(target, -1); }), IsEmpty()) << "at the top";
        }
    });
}

GUI_STARTUP_TEST(ListScroll, ByKeys)
{
    runList([](Shown dialog) {
        const int page = shownItems();
        ASSERT_TRUE(hasFocus(listOf(kList)));
        for (int i = 1; i < page; ++i) {
            EXPECT_THAT(eventsDuring([&] { dialog.key(XK_Down); }),
                        ElementsAre(selected(kList, i)));
            EXPECT_EQ(guiGetTop(kList), 0);
        }
        expectScroll(
            "Down", [&] { dialog.key(XK_Down); }, 1);
        expectScroll(
            "Page Down", [&] { dialog.key(XK_Page_Down); }, page);
        expectScroll(
            "End", [&] { dialog.key(XK_End, Control); }, kItems - page);
        expectScroll(
            "Page Up", [&] { dialog.key(XK_Page_Up); }, kItems - 2 * page + 1);
        expectScroll(
            "Home", [&] { dialog.key(XK_Home, Control); }, 0);
    });
}

// The pointer is below the list, the button held.
GUI_STARTUP_TEST(ListScroll, ByDraggingOutOfTheList)
{
    runList([this](Shown) {
        Widget const list = listOf(kList);
        robot.moveTo(list, middleOfItem(list, 1));
        const auto events = only(GUI_EVENT_SCROLLED, eventsDuring([&] {
                                     robot.press();
                                     const Rect rect = rectOf(list);
                                     robot.moveTo(Point{rect.x + 10, rect.bottom() + 8});
                                     EXPECT_TRUE(pumpUntil([] { return topOf(kList) >= 2; }));
                                     robot.release();
                                 }));
        ASSERT_FALSE(events.empty());
        EXPECT_EQ(events.back(), scrolled(kList, guiGetTop(kList)));
    });
}

// Where all items are seen there is nothing to scroll.
GUI_STARTUP_TEST(ListScroll, IsNotPossibleWithFewItems)
{
    runList(
        [this](Shown dialog) {
            EXPECT_THAT(only(GUI_EVENT_SCROLLED, eventsDuring([&] {
                                 robot.wheel(listOf(kList), 2);
                                 dialog.key(XK_End, Control);
                                 dialog.key(XK_Home, Control);
                             })),
                        IsEmpty());
            EXPECT_EQ(guiGetTop(kList), 0);
        },
        3);
}

// The host may close the dialog, and with it the bar that was moved.
GUI_STARTUP_TEST(ListScroll, HandlerMayCloseTheDialog)
{
    setDialogFont(kSmallFont);
    app.run([this] {
        ASSERT_EQ(guiDialog(""), 0);
        guiList(kList, 0, 8, 0, 80, GUI_BROWSE);
        recorder.onEvent(GUI_EVENT_INIT, [] { appendItems(kList, kItems); });
        recorder.onEvent(GUI_EVENT_SCROLLED, kList, [] { guiClose(64); });
        app.whenShown("v_dlgbbr", [this](Shown) {
            robot.moveTo(verticalBarOf(kList), onBar(-kInArrow));
            robot.click();
        });
        EXPECT_EQ(guiRunDialog(recorder.dialogHandler()), 64);
        EXPECT_FALSE(newestBoard());
    });
}
