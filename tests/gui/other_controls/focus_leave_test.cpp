// The user has left a multi-line text or a spin box: the host hears of the text only.

#include "other_controls_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

enum Id { kFirst = 1, kSecond, kNumber, kBox, kLever, kCheck, kButton };

void build()
{
    guiText(kFirst, 0, 3, 0, 80, 0);
    guiText(kSecond, 3, 3, 0, 80, 0);
    guiSpin(kNumber, 6, 0, 60);
    guiTree(kBox, 7, 3, 0, 80);
    guiSlider(kLever, 10, 2, 0, 80);
    guiCheck(kCheck, 13, 0, 40, "Check");
    guiButton(kButton, 14, 0, 40, "Button", 0);
}

void runBuilt(const std::function<void(Shown)>& use)
{
    runFilled(
        build, [] { fillItems(kBox, 3); },
        [&](Shown dialog) {
            ASSERT_TRUE(waitForKeyboard(kFirst));
            use(dialog);
        });
}

std::vector<Event> eventsOfClick(Widget widget, std::optional<Point> offset = {})
{
    return eventsDuring([&] { Robot::instance().click(widget, LeftButton, offset); });
}

}  // namespace

// Once, before the event of the control that was clicked.
GUI_TEST(TextLeave, IsReportedWhenAnotherControlIsClicked)
{
    runBuilt([](Shown) {
        const auto back = [] {
            eventsOfClick(innerOf(kFirst));
            return hasKeyboard(kFirst);
        };
        EXPECT_THAT(eventsOfClick(innerOf(kSecond)), ElementsAre(leftBehind(kFirst)));
        ASSERT_TRUE(back());
        EXPECT_THAT(eventsOfClick(innerOf(kNumber)), ElementsAre(leftBehind(kFirst)));
        ASSERT_TRUE(back());
        EXPECT_THAT(eventsOfClick(controlOf(kCheck)),
                    ElementsAre(leftBehind(kFirst), toDialog(GUI_EVENT_CHECK, kCheck, 1)));
        ASSERT_TRUE(back());
        EXPECT_THAT(eventsOfClick(controlOf(kButton)),
                    ElementsAre(leftBehind(kFirst), toDialog(GUI_EVENT_COMMAND, kButton)));
        ASSERT_TRUE(back());
        EXPECT_THAT(without(GUI_EVENT_VALUE, eventsOfClick(innerOf(kLever), Point{6, 6})),
                    ElementsAre(leftBehind(kFirst)));
        ASSERT_TRUE(back());
        const auto events = eventsOfClick(innerOf(kBox), Point{40, 12});
        ASSERT_FALSE(events.empty());
        EXPECT_EQ(events.front(), leftBehind(kFirst));
        EXPECT_EQ(std::count(events.begin(), events.end(), leftBehind(kFirst)), 1);
    });
}

GUI_TEST(TextLeave, IsReportedWhenAKeyGoesOn)
{
    runBuilt([](Shown dialog) {
        EXPECT_THAT(eventsDuring([&] { dialog.key(XK_Tab, Control); }),
                    ElementsAre(leftBehind(kFirst)));
        EXPECT_THAT(eventsDuring([&] { dialog.key(XK_Tab, Control); }),
                    ElementsAre(leftBehind(kSecond)));
        EXPECT_THAT(eventsDuring([&] { dialog.key(XK_Tab); }), IsEmpty()) << "a spin box was left";
    });

    runBuilt([](Shown) {
        const auto back = [] {
            eventsOfClick(innerOf(kNumber));
            return hasKeyboard(kNumber);
        };
        for (const int id : {kFirst, kCheck, kButton}) {
            ASSERT_TRUE(back());
            EXPECT_THAT(
                only(GUI_EVENT_LEFT, eventsOfClick(id == kFirst ? innerOf(id) : controlOf(id))),
                IsEmpty())
                << id;
        }
    });
}

// The keyboard stays where it is.
GUI_TEST(TextLeave, IsNotReportedWhenTheSameTextIsScrolledOrClicked)
{
    runBuilt([this](Shown) {
        fillLines(kFirst, 30);
        EXPECT_THAT(only(GUI_EVENT_LEFT, eventsOfClick(verticalBarOf(kFirst), Point{6, 6})),
                    IsEmpty());
        EXPECT_THAT(only(GUI_EVENT_LEFT, eventsDuring([&] { robot.wheel(innerOf(kFirst), 2); })),
                    IsEmpty());
        EXPECT_THAT(eventsOfClick(innerOf(kFirst)), IsEmpty());
        EXPECT_TRUE(hasKeyboard(kFirst));
    });
}
