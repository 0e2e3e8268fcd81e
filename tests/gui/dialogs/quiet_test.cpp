// While the library itself shows or closes a dialog, no event reaches the host.

#include "dialogs_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;

namespace {

constexpr int kMarker = 500;

}  // namespace

GUI_TEST(QuietDialog, NoEventIsDeliveredWhileItIsShown)
{
    // No event is delivered while it is shown.
    {
        recorder.clear();
        int mapped = 0;
        recorder.onEvent(GUI_EVENT_INIT, [&] {
            raiseEvent(GUI_EVENT_COMMAND, kMarker);  // delivered: the dialog is not being shown yet
            onCallback(board(), XmNmapCallback, [&] {
                ++mapped;
                raiseEvent(GUI_EVENT_COMMAND, kMarker + 1);
            });
        });
        buildDialog();
        runWhileShown([](Shown) { raiseEvent(GUI_EVENT_COMMAND, kMarker + 2); });
        EXPECT_EQ(mapped, 1);
        EXPECT_THAT(recorder.events(),
                    ElementsAre(toDialog(GUI_EVENT_INIT), toDialog(GUI_EVENT_COMMAND, kMarker),
                                toDialog(GUI_EVENT_COMMAND, kMarker + 2)));
    }

    recorder.forgetReactions();
    // No control raises an event by being shown.
    recorder.clear();
    ASSERT_EQ(guiDialog("Controls"), 0);
    for (std::size_t i = 0; i < allControls().size(); ++i)
        allControls()[i].make(static_cast<int>(i) + 1, static_cast<int>(i));
    runWhileShown([&](Shown dialog) {
        EXPECT_TRUE(wm::waitForFocus(dialog.widget()));
        settle();
        EXPECT_THAT(recorder.events(), ElementsAre(toDialog(GUI_EVENT_INIT)));
    });
}

GUI_TEST(QuietDialog, NoEventIsDeliveredWhileItIsClosed)
{
    recorder.clear();
    int unmapped = 0;
    buildDialog();
    runWhileShown([&](Shown dialog) {
        onCallback(dialog.widget(), XmNunmapCallback, [&] {
            ++unmapped;
            raiseEvent(GUI_EVENT_COMMAND, kMarker);
        });
    });
    EXPECT_EQ(unmapped, 1);
    raiseEvent(GUI_EVENT_COMMAND, kMarker + 1);
    EXPECT_THAT(recorder.events(),
                ElementsAre(toDialog(GUI_EVENT_INIT), toWindow(GUI_EVENT_COMMAND, kMarker + 1)));
}
