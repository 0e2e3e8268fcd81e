// Spin boxes by their arrows: the mouse on them, and the arrow keys.

#include <Xm/SSpinB.h>

#include "other_controls_support.h"

using namespace kite::testing;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

enum Id { kNumber = 5 };
enum Arrow { kUp, kDown };

Point onArrow(Arrow arrow)
{
    const Rect box = placeOf(controlOf(kNumber));
    const Rect field = placeOf(innerOf(kNumber));
    return {(field.right() + box.width) / 2, arrow == kUp ? box.height / 3 : box.height * 2 / 3};
}

void clickArrow(Arrow arrow)
{
    Robot::instance().click(controlOf(kNumber), LeftButton, onArrow(arrow));
}

std::vector<Event> numbers(const std::function<void()>& action)
{
    return only(GUI_EVENT_TEXT_CHANGED, eventsDuring(action));
}

void runSpin(const std::function<void()>& fill, const std::function<void(Shown)>& use)
{
    runFilled([] { guiSpin(kNumber, 0, 0, 60); }, fill, use);
}

}  // namespace

GUI_TEST(SpinArrows, StepByOne)
{
    runSpin([] {},
            [](Shown) {
                EXPECT_THAT(numbers([] { clickArrow(kUp); }), ElementsAre(number(kNumber, 1)));
                EXPECT_THAT(numbers([] { clickArrow(kUp); }), ElementsAre(number(kNumber, 2)));
                EXPECT_EQ(fieldTextOf(kNumber), "2");
                EXPECT_THAT(numbers([] { clickArrow(kDown); }), ElementsAre(number(kNumber, 1)));
                EXPECT_EQ(fieldTextOf(kNumber), "1");
                EXPECT_EQ(guiGetTextInt(kNumber), 1);
            });

    runSpin([] { guiSetText(kNumber, "50"); },
            [](Shown dialog) {
                ASSERT_TRUE(waitForKeyboard(kNumber));
                EXPECT_THAT(numbers([&] { dialog.key(XK_Up); }), ElementsAre(number(kNumber, 51)));
                EXPECT_THAT(numbers([&] { dialog.key(XK_Down); }),
                            ElementsAre(number(kNumber, 50)));
                EXPECT_EQ(fieldTextOf(kNumber), "50");
            });
}

// One event for each step, up to the button's release.
GUI_TEST(SpinArrows, GoOnWhileTheyAreHeld)
{
    runSpin([] {},
            [this](Shown) {
                robot.moveTo(controlOf(kNumber), onArrow(kUp));
                const auto events = numbers([&] {
                    robot.press();
                    EXPECT_TRUE(pumpUntil([] { return guiGetTextInt(kNumber) >= 5; }));
                    robot.release();
                });
                for (std::size_t i = 0; i < events.size(); ++i)
                    EXPECT_EQ(events[i], number(kNumber, static_cast<int>(i) + 1));
                const int reached = guiGetTextInt(kNumber);
                EXPECT_TRUE(
                    holdsFor([&] { return guiGetTextInt(kNumber) == reached; }, milliseconds{500}));
            });
}

GUI_TEST(SpinArrows, GoOnFromTheNumberThatWasTyped)
{
    runSpin([] {},
            [](Shown dialog) {
                ASSERT_TRUE(waitForKeyboard(kNumber));
                dialog.key(XK_slash, Control);
                dialog.type("42");
                EXPECT_THAT(numbers([] { clickArrow(kUp); }), ElementsAre(number(kNumber, 43)));
                EXPECT_EQ(fieldTextOf(kNumber), "43");
                dialog.key(XK_slash, Control);
                dialog.type("9x");
                EXPECT_THAT(numbers([] { clickArrow(kDown); }), ElementsAre(number(kNumber, 8)));
                dialog.key(XK_slash, Control);
                dialog.type("77");
                EXPECT_THAT(numbers([&] { dialog.key(XK_Up); }), ElementsAre(number(kNumber, 78)));
            });
}

GUI_TEST(SpinArrows, StayWithinTheRange)
{
    runSpin([] { guiSetText(kNumber, "99"); },
            [](Shown) {
                clickArrow(kUp);
                EXPECT_EQ(fieldTextOf(kNumber), "100");
                const auto beyond = numbers([] { clickArrow(kUp); });
                const int number = guiGetTextInt(kNumber);
                EXPECT_TRUE(number >= 0 && number <= 100) << number;
                EXPECT_LE(beyond.size(), 1U);

                guiSetRange(kNumber, -2, 3);
                guiSetText(kNumber, "2");
                clickArrow(kUp);
                EXPECT_EQ(fieldTextOf(kNumber), "3");
                guiSetText(kNumber, "-1");
                EXPECT_THAT(numbers([] { clickArrow(kDown); }),
                            ElementsAre(kite::testing::number(kNumber, -2)));
                EXPECT_EQ(fieldTextOf(kNumber), "-2");
            });
}

GUI_TEST(SpinArrows, OfADisabledBoxDoNothing)
{
    runSpin([] { guiEnable(kNumber, 0); },
            [](Shown) {
                EXPECT_THAT(numbers([] { clickArrow(kUp); }), IsEmpty());
                EXPECT_EQ(fieldTextOf(kNumber), "0");
            });
}

// No operation reaches it, but its events come.
GUI_TEST(SpinArrows, OfAnAnonymousBoxReportMinusOne)
{
    runDialog([] { guiSpin(-1, 0, 0, 60); },
              [](Shown dialog) {
                  Widget const field = resource<Widget>(controlsOfBoard().front(), XmNtextField);
                  ASSERT_TRUE(pumpUntil([&] { return XmGetFocusWidget(newestBoard()) == field; }));
                  EXPECT_THAT(numbers([&] { dialog.key(XK_Up); }), ElementsAre(number(-1, 1)));
              });
}

GUI_TEST(SpinArrows, MayCloseTheDialog)
{
    recorder.onEvent(GUI_EVENT_TEXT_CHANGED, kNumber, [] { guiClose(21); });
    ASSERT_EQ(guiDialog(""), 0);
    guiSpin(kNumber, 0, 0, 60);
    app.whenShown("v_dlgbbr", [this](Shown) {
        robot.moveTo(controlOf(kNumber), onArrow(kUp));
        robot.click();
    });
    EXPECT_EQ(guiRunDialog(recorder.dialogHandler()), 21);
    EXPECT_FALSE(newestBoard());
}
