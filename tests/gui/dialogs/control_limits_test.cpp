// The largest dialog: 32768 controls.

#include <chrono>

#include "dialogs_support.h"

using namespace kite::testing;

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

// Takes the error box of a call away and returns its message. By a time-out of its own: the script would
// look for the box among all the controls again and again, and leave no time for anything else.
class BoxTaker {
public:
    std::string messageOf(const std::function<void()>& call)
    {
        message_ = "none";
        wait();
        call();
        if (timer_) XtRemoveTimeOut(timer_);
        return message_;
    }

private:
    void wait() { timer_ = XtAppAddTimeOut(toolkit::context(), 5, look, this); }

    static void look(XtPointer self, XtIntervalId*)
    {
        auto& taker = *static_cast<BoxTaker*>(self);
        Widget const box = guiGetTopWnd();
        if (std::string{XtName(box)} != "v_errorbox") return taker.wait();
        taker.timer_ = 0;
        taker.message_ = kite::testing::messageOf(box);
        XtDestroyWidget(shellOf(box));
    }

    std::string message_;
    XtIntervalId timer_ = 0;
};

}  // namespace

GUI_TEST(ControlLimits, TakesAllControlsInGoodTime)
{
    const double building = secondsFor(fill);
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
    BoxTaker boxes;
    for (const ControlKind& kind : allControls())
        for (const int id : {kind.lowestId, 7, -2, 32768})
            EXPECT_EQ(boxes.messageOf([&] { kind.make(id, 0); }),
                      kind.name + ": too many dialog items")
                << id;
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
