// guiGetCheck and guiSetCheck.

#include <Xm/ToggleB.h>

#include "dialog_plan.h"

using namespace kite::testing;

namespace {

// 1 to 3 are a group of radio buttons, 4 is a check box.
void buildToggles()
{
    for (const int id : {1, 2, 3}) guiRadio(id, id, 0, 60, "Radio");
    guiCheck(4, 4, 0, 60, "Check");
}

std::vector<int> states()
{
    return {guiGetCheck(1), guiGetCheck(2), guiGetCheck(3), guiGetCheck(4)};
}

}  // namespace

using ::testing::ElementsAre;

GUI_TEST(CheckState, IsThatOfTheToggle)
{
    runDialog({.build = buildToggles, .fill = [] {
                   EXPECT_THAT(states(), ElementsAre(1, 0, 0, 0));
                   for (const int id : {1, 2, 3, 4})
                       for (const int state : {1, 0}) {
                           XmToggleButtonSetState(outerOf(id), state != 0, False);
                           EXPECT_EQ(guiGetCheck(id), state);
                       }
               }});
}

GUI_TEST(CheckState, AnyNumberButZeroSets)
{
    runDialog({.build = buildToggles, .fill = [] {
                   for (const int state : {1, 2, -1, 256, 65536}) {
                       for (const int id : {3, 4}) {
                           guiSetCheck(id, state);
                           EXPECT_EQ(guiGetCheck(id), 1);
                           EXPECT_TRUE(XmToggleButtonGetState(outerOf(id)));
                           guiSetCheck(id, 0);
                           EXPECT_EQ(guiGetCheck(id), 0);
                       }
                   }
               }});
}

GUI_TEST(CheckState, LeavesTheGroupAsItIs)
{
    runDialog({.build = buildToggles, .look = [](Shown) {
                   guiSetCheck(2, 1);
                   EXPECT_THAT(states(), ElementsAre(1, 1, 0, 0));
                   guiSetCheck(1, 0);
                   EXPECT_THAT(states(), ElementsAre(0, 1, 0, 0));
                   guiSetCheck(2, 0);
                   EXPECT_THAT(states(), ElementsAre(0, 0, 0, 0));
               }});
}

GUI_TEST(CheckState, SettingRaisesNoEvent)
{
    runDialog({.build = buildToggles, .look = [&](Shown) {
                   recorder.clear();
                   for (const int id : {1, 2, 3, 4})
                       for (const int state : {1, 0, 1}) guiSetCheck(id, state);
                   settle();
                   EXPECT_EQ(recorder.count(GUI_EVENT_CHECK) + recorder.count(GUI_EVENT_RADIO), 0);
               }});
}

GUI_TEST(CheckState, FollowsTheUser)
{
    runDialog({.build = buildToggles, .look = [&](Shown) {
                   robot.click(outerOf(4));
                   EXPECT_EQ(guiGetCheck(4), 1);
                   robot.click(outerOf(3));
                   EXPECT_THAT(states(), ElementsAre(0, 0, 1, 1));
                   EXPECT_EQ(recorder.count(toDialog(GUI_EVENT_CHECK, 4, 1)), 1);
               }});
}

GUI_TEST(CheckState, IsSeen)
{
    runDialog({.build = buildToggles, .look = [&](Shown) {
                   const screen::Picture before = screen::grab(outerOf(4));
                   guiSetCheck(4, 1);
                   EXPECT_TRUE(pumpUntil([&] { return screen::grab(outerOf(4)) != before; }));
                   guiSetCheck(4, 0);
                   EXPECT_TRUE(pumpUntil([&] { return screen::grab(outerOf(4)) == before; }));
               }});
}
