// Buttons, check boxes and radio buttons, operated by mouse and space bar.

#include "simple_controls_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

std::vector<Event> eventsOfClick(int id)
{
    return eventsDuring([&] { Robot::instance().click(controlOf(id)); });
}

std::vector<Event> eventsOfSpace(Shown dialog)
{
    return eventsDuring([&] { dialog.key(XK_space); });
}

}  // namespace

GUI_TEST(Button, IsPressedByMouseAndSpace)
{
    runDialog(
        [] {
            guiButton(5, 0, 0, 40, "Five", 0);
            guiButton(32767, 1, 0, 40, "Last", 0);
            guiButton(0, 2, 0, 40, "Cancel", 0);
        },
        [](Shown dialog) {
            for (const int id : {32767, 5, 0}) {
                EXPECT_THAT(eventsOfClick(id), ElementsAre(toDialog(GUI_EVENT_COMMAND, id)));
                EXPECT_THAT(eventsOfSpace(dialog), ElementsAre(toDialog(GUI_EVENT_COMMAND, id)));
            }
        });
}

GUI_TEST(Button, IsNotPressedWhenThePointerLeavesIt)
{
    runDialog(
        [] {
            guiButton(5, 0, 0, 40, "Five", 0);
            guiLabel(6, 3, 0, 40, "Label");
        },
        [this](Shown) {
            EXPECT_THAT(eventsDuring([&] {
                            robot.drag(rectOf(controlOf(5)).centre(),
                                       rectOf(controlOf(6)).centre());
                            settle();
                        }),
                        IsEmpty());
        });
}

GUI_TEST(Button, ThatIsDisabledIsNotPressed)
{
    runDialog(
        [] {
            guiEdit(1, 0, 0, 40, 0, 0);
            guiButton(5, 1, 0, 40, "Five", 1);
        },
        [](Shown) {
            guiEnable(5, 0);
            EXPECT_THAT(eventsOfClick(5), IsEmpty());
            guiEnable(5, 1);
            EXPECT_THAT(without(GUI_EVENT_LEFT, eventsOfClick(5)),
                        ElementsAre(toDialog(GUI_EVENT_COMMAND, 5)));
        });
}

// Its handler may close the dialog, which takes the button with it.
GUI_TEST(Button, MayCloseItsDialog)
{
    ASSERT_EQ(guiDialog(""), 0);
    guiEdit(1, 0, 0, 40, 0, 0);
    guiButton(5, 1, 0, 40, "Close", 0);
    recorder.onEvent(GUI_EVENT_COMMAND, 5, [] { guiClose(42); });
    app.whenShown("v_dlgbbr", [](Shown dialog) { dialog.click("Close"); });
    EXPECT_EQ(guiRunDialog(recorder.dialogHandler()), 42);
    EXPECT_FALSE(newestBoard());
}

GUI_TEST(CheckBox, ReportsItsNewState)
{
    recorder.onEvent(GUI_EVENT_CHECK, [](const Event& event) {
        EXPECT_EQ(guiGetCheck(event.id), event.a) << "while the handler is called";
    });
    runDialog(
        [] {
            guiCheck(1, 0, 0, 40, "One");
            guiCheck(2, 1, 0, 40, "Two");
        },
        [](Shown dialog) {
            EXPECT_FALSE(isToggled(1) || isToggled(2)) << "at first";
            EXPECT_THAT(eventsOfClick(2), ElementsAre(toDialog(GUI_EVENT_CHECK, 2, 1)));
            EXPECT_TRUE(isToggled(2));
            EXPECT_THAT(eventsOfSpace(dialog), ElementsAre(toDialog(GUI_EVENT_CHECK, 2, 0)));
            EXPECT_FALSE(isToggled(2));
            EXPECT_THAT(eventsOfSpace(dialog), ElementsAre(toDialog(GUI_EVENT_CHECK, 2, 1)));
            EXPECT_THAT(eventsOfClick(1), ElementsAre(toDialog(GUI_EVENT_CHECK, 1, 1)));
            EXPECT_TRUE(isToggled(2)) << "they are independent";
        });
}

// The whole of it can be clicked, the label too.
GUI_TEST(CheckBox, IsClickedOnIndicatorAndLabel)
{
    runDialog([] { guiCheck(1, 0, 0, 80, "Check"); },
              [this](Shown) {
                  const int width = placeOf(controlOf(1)).width;
                  for (const int x : {5, 30, width - 5})
                      EXPECT_EQ(eventsDuring([&] {
                                    robot.click(controlOf(1), LeftButton, Point{x, 8});
                                }).size(),
                                1U)
                          << x;
              });
}
