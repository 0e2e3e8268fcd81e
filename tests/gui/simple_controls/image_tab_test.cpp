// Image controls get the keyboard by a click alone.

#include "simple_controls_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;

GUI_TEST(ImageControl, IsNoStopOfTheTabKey)
{
    runDialog(
        [] {
            guiImage(1, 0, 2, 0, 60, 1);
            guiEdit(2, 3, 0, 60, 0, 0);
            guiCheck(3, 4, 0, 60, "Check");
        },
        [](Shown dialog) {
            std::vector<int> ids{guiGetFocus()};
            for (int i = 0; i < 3; ++i) {
                dialog.key(XK_Tab);
                ids.push_back(guiGetFocus());
            }
            EXPECT_THAT(ids, ElementsAre(2, 3, 2, 3));
        });
}

GUI_TEST(ImageControl, IsNeverTheFirstWithTheKeyboard)
{
    runDialog(
        [] {
            guiImage(1, 0, 2, 0, 60, 1);
            guiButton(0, 3, 0, 0, "", 0);
        },
        [](Shown) { EXPECT_EQ(guiGetFocus(), -1); });
}

GUI_TEST(ImageControl, IsNoStopAfterAClickEither)
{
    runDialog(
        [] {
            guiImage(1, 0, 2, 0, 60, 1);
            guiEdit(2, 3, 0, 60, 0, 0);
            guiCheck(3, 4, 0, 60, "Check");
        },
        [this](Shown dialog) {
            robot.click(controlOf(1));
            std::vector<int> ids{guiGetFocus()};
            for (int i = 0; i < 4; ++i) {
                dialog.key(XK_Tab);
                ids.push_back(guiGetFocus());
            }
            EXPECT_THAT(ids, ElementsAre(1, 2, 3, 2, 3));
        });
}
