// Multi-line texts and trees scrolled in every way: the host hears of it with the first visible line or item.

#include <Xm/ScrollBar.h>

#include "other_controls_support.h"

using namespace kite::testing;
using ::testing::AllOf;
using ::testing::Each;
using ::testing::Field;
using ::testing::IsEmpty;

namespace {

enum Id { kLines = 1, kItems };
constexpr int kCount = 60;

void build()
{
    guiText(kLines, 0, 5, 0, 100, 0);
    guiTree(kItems, 6, 5, 0, 100);
}

void fill()
{
    fillLines(kLines, kCount);
    guiSetTop(kLines, 0);
    guiSetPos(kLines, 0);
    fillItems(kItems, kCount);
}

// The event's value, each time, is what guiGetTop returns then.
void watchTops(std::vector<int>& tops)
{
    Recorder::instance().onEvent(GUI_EVENT_SCROLLED, [&](const Event& event) {
        EXPECT_EQ(event.a, guiGetTop(event.id)) << event;
        tops.push_back(event.a);
    });
}

// Down by a way, then up by its opposite: both are reported, and it is as it was.
void expectScrolled(int id, const std::string& way, const std::function<void()>& down,
                    const std::function<void()>& up)
{
    SCOPED_TRACE((id == kLines ? "text by " : "tree by ") + way);
    const int before = guiGetTop(id);
    auto events = only(GUI_EVENT_SCROLLED, eventsDuring(down));
    ASSERT_FALSE(events.empty());
    EXPECT_THAT(events, Each(Field(&Event::id, id)));
    const int below = guiGetTop(id);
    EXPECT_GT(below, before);
    EXPECT_EQ(events.back(), scrolled(id, below));
    events = only(GUI_EVENT_SCROLLED, eventsDuring(up));
    ASSERT_FALSE(events.empty());
    EXPECT_EQ(guiGetTop(id), before);
    EXPECT_EQ(events.back(), scrolled(id, before));
}

void clickBar(int id, int fromTop, int fromBottom)
{
    Widget const bar = verticalBarOf(id);
    const Rect rect = rectOf(bar);
    Robot::instance().click(bar, LeftButton,
                            Point{rect.width / 2, fromTop ? fromTop : rect.height - fromBottom});
}

void forBoth(const std::function<void(int id)>& body)
{
    std::vector<int> tops;
    watchTops(tops);
    runFilled(build, fill, [&](Shown) {
        if (guiOutputLineCount() == 0) guiWriteText("\n");
        for (const int id : {int{kLines}, int{kItems}}) body(id);
        EXPECT_FALSE(tops.empty());
    });
}

}  // namespace

GUI_TEST(Scrolled, ByTheArrowsAndTheTroughOfTheBar)
{
    forBoth([](int id) {
        expectScrolled(
            id, "arrow", [&] { clickBar(id, 0, 6); }, [&] { clickBar(id, 6, 0); });
    });

    forBoth([](int id) {
        expectScrolled(
            id, "trough", [&] { clickBar(id, 0, 24); }, [&] { clickBar(id, 20, 0); });
    });
}

// Every position on the way is reported.
GUI_TEST(Scrolled, ByDraggingTheSlider)
{
    forBoth([this](int id) {
        const Rect bar = rectOf(verticalBarOf(id));
        const Point top{bar.centre().x, bar.y + 20};
        const Point below = top + Point{0, bar.height / 2};
        std::vector<Event> events;
        expectScrolled(
            id, "slider",
            [&] {
                robot.drag(top, below);
                EXPECT_TRUE(pumpUntil([&] { return guiGetTop(id) > 5; }));
                settle();
                EXPECT_GE(recorder.count(GUI_EVENT_SCROLLED), 2);
            },
            [&] {
                robot.drag(below, Point{top.x, bar.y - 40});
                EXPECT_TRUE(pumpUntil([&] { return guiGetTop(id) == 0; }));
            });
    });
}

GUI_TEST(Scrolled, ByTheWheel)
{
    forBoth([this](int id) {
        expectScrolled(
            id, "wheel on the bar", [&] { robot.wheel(verticalBarOf(id), 2); },
            [&] { robot.wheel(verticalBarOf(id), -2); });
        expectScrolled(
            id, "wheel on the control", [&] { robot.wheel(viewOf(id), 2); },
            [&] { robot.wheel(viewOf(id), -2); });
    });
}

// At the ends there is nowhere to go.
GUI_TEST(Scrolled, ByTheWheelNotBeyondTheEndsOfATree)
{
    runFilled(build, fill, [this](Shown) {
        EXPECT_THAT(eventsDuring([&] { robot.wheel(viewOf(kItems), -3); }), IsEmpty());
        robot.wheel(viewOf(kItems), 25);
        settle();
        const int last = guiGetTop(kItems);
        EXPECT_LT(last, kCount);
        EXPECT_GT(last, kCount - 12);
        EXPECT_THAT(eventsDuring([&] { robot.wheel(viewOf(kItems), 3); }), IsEmpty());
        EXPECT_EQ(guiGetTop(kItems), last);
    });
}

GUI_TEST(Scrolled, ByTheKeysOfTheControl)
{
    std::vector<int> tops;
    watchTops(tops);
    runFilled(build, fill, [this](Shown dialog) {
        robot.click(innerOf(kLines), LeftButton, Point{10, 8});
        ASSERT_TRUE(waitForKeyboard(kLines));
        expectScrolled(
            kLines, "page keys", [&] { dialog.key(XK_Next); }, [&] { dialog.key(XK_Prior); });
        expectScrolled(
            kLines, "ends", [&] { dialog.key(XK_End, Control); },
            [&] { dialog.key(XK_Home, Control); });
        robot.click(innerOf(kItems), LeftButton, Point{30, 12});
        ASSERT_TRUE(waitForKeyboard(kItems));
        expectScrolled(
            kItems, "ends", [&] { dialog.key(XK_End, Control); },
            [&] { dialog.key(XK_Home, Control); });
    });
}

// Typing beyond the last visible line scrolls as well.
GUI_TEST(Scrolled, ByTyping)
{
    runDialog(build, [](Shown dialog) {
        ASSERT_TRUE(waitForKeyboard(kLines));
        const auto events = only(GUI_EVENT_SCROLLED, eventsDuring([&] {
                                     for (int i = 0; i < 12; ++i) dialog.key(XK_Return);
                                 }));
        ASSERT_FALSE(events.empty());
        EXPECT_EQ(events.back(), scrolled(kLines, guiGetTop(kLines)));
        EXPECT_GT(guiGetTop(kLines), 3);
    });
}

// A branch that is collapsed counts as one item.
GUI_TEST(Scrolled, TreesCountTheItemsThatAreSeen)
{
    runFilled(
        build,
        [] {
            for (int key = 1; key <= 5; ++key) {
                guiAddTree(kItems, 0, key, "Branch");
                for (int i = 0; i < 10; ++i) guiAddTree(kItems, key, key * 100 + i, "Leaf");
            }
        },
        [this](Shown dialog) {
            EXPECT_EQ(guiGetTop(kItems), 0);
            robot.click(innerOf(kItems), LeftButton, Point{60, 12});
            ASSERT_TRUE(waitForKeyboard(kItems));
            dialog.key(XK_Home, Control);
            dialog.key(XK_Right, Control);
            dialog.key(XK_End, Control);
            const int top = guiGetTop(kItems);
            EXPECT_GT(top, 5);
            EXPECT_LT(top, 15) << "15 items in all";
        });
}

GUI_TEST(Scrolled, AcrossIsNotReported)
{
    runFilled(
        build,
        [] {
            guiSetText(kLines, std::string(300, 'm').c_str());
            guiAddTree(kItems, 0, 1, std::string(300, 'm').c_str());
        },
        [this](Shown) {
            for (const int id : {int{kLines}, int{kItems}}) {
                Widget const bar = resource<Widget>(controlOf(id), XmNhorizontalScrollBar);
                ASSERT_TRUE(XtIsManaged(bar)) << id;
                const Rect rect = rectOf(bar);
                int before = 0, after = 0;
                XtVaGetValues(bar, XmNvalue, &before, nullptr);
                EXPECT_THAT(
                    eventsDuring([&] {
                        robot.click(bar, LeftButton, Point{rect.width - 6, rect.height / 2});
                    }),
                    IsEmpty())
                    << id;
                XtVaGetValues(bar, XmNvalue, &after, nullptr);
                EXPECT_GT(after, before) << id;
            }
        });
}

GUI_TEST(Scrolled, MayCloseTheDialog)
{
    const std::function<void(int id)> ways[] = {
        [this](int id) {
            robot.moveTo(viewOf(id), Point{20, 20});
            robot.wheel(1);
        },
        [this](int id) {
            const Rect bar = rectOf(verticalBarOf(id));
            robot.drag({bar.centre().x, bar.y + 20}, bar.centre() + Point{0, 20});
        },
    };
    for (const int id : {int{kLines}, int{kItems}})
        for (const auto& way : ways) {
            recorder.onEvent(GUI_EVENT_SCROLLED, id, [] { guiClose(64); });
            recorder.onEvent(GUI_EVENT_INIT, fill);
            ASSERT_EQ(guiDialog(""), 0);
            build();
            app.whenShown("v_dlgbbr", [&](Shown) { way(id); });
            EXPECT_EQ(guiRunDialog(recorder.dialogHandler()), 64);
            EXPECT_TRUE(wm::waitForFocus(app.shell()));
            app.key(XK_F5);  // goes to the frame, and not to the bar that is gone
            EXPECT_TRUE(app.waitForEvent(toWindow(GUI_EVENT_COMMAND, -5)));
            recorder.clear();
        }
}
