// The largest dialog: 32768 controls.

#include <chrono>

#include "dialogs_support.h"

using namespace kite::testing;
using ::testing::IsEmpty;

namespace {

constexpr int kMost = 32768;

double secondsFor(const std::function<void()>& action)
{
    const auto begin = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

void fill()
{
    ASSERT_EQ(guiDialog("Full"), 0);
    guiUseAbsPos(1);
    for (int id = 1; id < kMost; ++id) guiLine(id, id % 100, 1, id % 200, 2);
    guiLine(GUI_ANONYMOUS, 0, 1, 0, 2);
}

}  // namespace

GUI_TEST(ControlLimits, TakesAllControlsInGoodTime)
{
    const double building = secondsFor([] { EXPECT_THAT(errorsDuring(fill), IsEmpty()); });
    EXPECT_EQ(controlCount(), kMost);
    const double throwingAway = secondsFor([] { guiClose(0); });
    RecordProperty("building_ms", static_cast<int>(building * 1000));
    RecordProperty("throwing_away_ms", static_cast<int>(throwingAway * 1000));
    EXPECT_LT(building, 10 * kSlowness);
    EXPECT_LT(throwingAway, 10 * kSlowness);
}

// Before anything is said about the id, and for anonymous controls as well.
GUI_TEST(ControlLimits, RefusesTheNextOfEveryKind)
{
    fill();
    for (const ControlKind& kind : allControls())
        EXPECT_MISUSE(kind.make(kind.lowestId, 0), kind.name + ": too many dialog items");
    for (const int id : {7, -2, 32768})
        EXPECT_MISUSE(guiLine(id, 0, 1, 0, 9), "Line: too many dialog items");
    EXPECT_EQ(controlCount(), kMost);
    guiClose(0);
    EXPECT_MISUSE(guiLabel(1, 0, 0, 9, ""), "Label: no dialog is built at the moment");
    buildDialog("After");
    EXPECT_EQ(runWhileShown([](Shown) {}, 2), 2);
}

// One more than fits was refused; what is there can be run.
GUI_TEST(ControlLimits, FullDialogKnowsItsLastControls)
{
    ASSERT_EQ(guiDialog("Full"), 0);
    guiUseAbsPos(1);
    for (int i = 2; i < kMost; ++i) guiLine(GUI_ANONYMOUS, 0, 1, 0, 2);
    guiButton(9, 50, 50, 40, "Last but one", 0);
    guiButton(GUI_CANCEL_BUTTON, 70, 90, 40, "Last", 1);
    Widget const last = control(0);
    const Rect place{resource<Position>(last, XmNx), resource<Position>(last, XmNy),
                     resource<Dimension>(last, XmNwidth), resource<Dimension>(last, XmNheight)};
    const Units units = unitsOf(kUsualFont);
    recorder.onEvent(GUI_EVENT_INIT, [&] {
        Widget const dialog = board();
        EXPECT_EQ(resource<Widget>(dialog, XmNcancelButton), last);
        EXPECT_EQ(resource<Widget>(dialog, XmNdefaultButton), last);
        EXPECT_EQ(resource<Widget>(dialog, XmNinitialFocus), control(9));
        EXPECT_EQ(resource<Dimension>(dialog, XmNwidth),
                  place.x + place.width + static_cast<int>(7 * units.across));
        EXPECT_EQ(resource<Dimension>(dialog, XmNheight),
                  place.y + place.height + static_cast<int>(7 * units.down));
        guiClose(6);
    });
    EXPECT_EQ(guiRunDialog(Recorder::dialogHandler()), 6);
}
