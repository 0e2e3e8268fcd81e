// Numbers typed into spin boxes.

#include <Xm/SSpinB.h>

#include "other_controls_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

enum Id { kNumber = 5 };

std::vector<Event> numbers(const std::function<void()>& action)
{
    return only(GUI_EVENT_TEXT_CHANGED, eventsDuring(action));
}

void clearField(Shown dialog)
{
    ASSERT_TRUE(waitForKeyboard(kNumber));
    dialog.key(XK_slash, Control);
    dialog.key(XK_Delete);
}

void runSpin(const std::function<void(Shown)>& use)
{
    runDialog([] { guiSpin(kNumber, 0, 0, 60); }, use);
}

}  // namespace

GUI_TEST(SpinTyping, ReportsTheNumberOfEachChange)
{
    runSpin([](Shown dialog) {
        EXPECT_THAT(numbers([&] { clearField(dialog); }), ElementsAre(number(kNumber, 0)))
            << "nothing is no number";
        EXPECT_THAT(numbers([&] { dialog.type("42"); }),
                    ElementsAre(number(kNumber, 4), number(kNumber, 42)));
        EXPECT_EQ(fieldTextOf(kNumber), "42");
        EXPECT_THAT(numbers([&] { dialog.key(XK_BackSpace); }), ElementsAre(number(kNumber, 4)));
    });

    // The number at the beginning counts, whatever follows it; none is 0.
    runSpin([](Shown dialog) {
        clearField(dialog);
        EXPECT_THAT(numbers([&] { dialog.type("7x8"); }),
                    ElementsAre(number(kNumber, 7), number(kNumber, 7), number(kNumber, 7)));
        clearField(dialog);
        EXPECT_THAT(numbers([&] { dialog.type("ab"); }),
                    ElementsAre(number(kNumber, 0), number(kNumber, 0)));
        clearField(dialog);
        EXPECT_THAT(numbers([&] { dialog.type("-5"); }),
                    ElementsAre(number(kNumber, 0), number(kNumber, -5)));
        EXPECT_EQ(fieldTextOf(kNumber), "-5") << "what is typed stays";
    });
}

// Numbers beyond the range can be typed; the arrows bring them back.
GUI_TEST(SpinTyping, NumbersBeyondTheRangeAreReported)
{
    runSpin([](Shown dialog) {
        clearField(dialog);
        EXPECT_THAT(numbers([&] { dialog.type("250"); }),
                    ElementsAre(number(kNumber, 2), number(kNumber, 25), number(kNumber, 250)));
        EXPECT_EQ(guiGetTextInt(kNumber), 250);
        dialog.key(XK_Down);
        EXPECT_EQ(fieldTextOf(kNumber), "99");
    });
}

GUI_TEST(SpinTyping, HasItsNumberWhenTheHandlerIsCalled)
{
    recorder.onEvent(GUI_EVENT_TEXT_CHANGED, kNumber,
                     [](const Event& event) { EXPECT_EQ(guiGetTextInt(kNumber), event.a); });
    runSpin([this](Shown dialog) {
        clearField(dialog);
        dialog.type("31");
        EXPECT_EQ(recorder.count(GUI_EVENT_TEXT_CHANGED), 3);
    });
}

GUI_TEST(SpinTyping, ReportsNothingOfTheHostsChanges)
{
    const auto change = [] {
        guiSetText(kNumber, "12");
        guiSetPos(kNumber, 30);
        guiSetRange(kNumber, 1, 20);
        guiSetTextInt(kNumber, 3);
    };
    runFilled([] { guiSpin(kNumber, 0, 0, 60); }, change,
              [&](Shown) {
                  EXPECT_THAT(only(GUI_EVENT_TEXT_CHANGED, recorder.events()), IsEmpty());
                  EXPECT_THAT(numbers(change), IsEmpty());
                  EXPECT_EQ(fieldTextOf(kNumber), "3");
              });
}

// The box has a number of its own, which is that of the field.
GUI_TEST(SpinTyping, IsKeptByWhatChangesTheBox)
{
    runFilled([] { guiSpin(kNumber, 0, 0, 60); }, [] { guiSetTextInt(kNumber, 50); },
              [](Shown dialog) {
                  ASSERT_TRUE(waitForKeyboard(kNumber));
                  for (int step = 0; step < 2; ++step) dialog.key(XK_Up);
                  ASSERT_EQ(fieldTextOf(kNumber), "52");
                  EXPECT_THAT(eventsDuring([] {
                                  guiSetTextAtt(kNumber, 0, "#ff0000");
                                  guiSetTextAtt(kNumber, 0, "VEXFIXED");
                                  guiEnable(kNumber, 0);
                                  guiEnable(kNumber, 1);
                              }),
                              ::testing::IsEmpty());
                  EXPECT_EQ(fieldTextOf(kNumber), "52");
              });
}
