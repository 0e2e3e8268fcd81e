// Image controls get the keyboard by a click alone.

#include "simple_controls_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;

namespace {

void build()
{
    guiImage(1, 0, 2, 0, 60, 1);
    guiEdit(2, 3, 0, 60, 0, 0);
    guiCheck(3, 4, 0, 60, "Check");
}

// The ids of the controls that have the keyboard, now and after each press of the Tab key.
std::vector<int> stopsOfTab(Shown dialog, int presses)
{
    std::vector<int> ids{guiGetFocus()};
    for (int i = 0; i < presses; ++i) {
        dialog.key(XK_Tab);
        ids.push_back(guiGetFocus());
    }
    return ids;
}

}  // namespace

GUI_TEST(ImageControl, IsNoStopOfTheTabKey)
{
    runDialog(build,
              [](Shown dialog) { EXPECT_THAT(stopsOfTab(dialog, 3), ElementsAre(2, 3, 2, 3)); });
}

GUI_TEST(ImageControl, IsNoStopAfterAClickEither)
{
    runDialog(build, [this](Shown dialog) {
        robot.click(controlOf(1));
        EXPECT_THAT(stopsOfTab(dialog, 4), ElementsAre(1, 2, 3, 2, 3));
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
