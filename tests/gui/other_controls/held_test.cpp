// Arrows and bars that are held with the mouse repeat what they do, in time-outs of the toolkit's.

#include <Xm/Xm.h>

#include "other_controls_support.h"

using namespace kite::testing;

namespace {

struct Held {
    Kind kind;
    int event;
    std::function<Point()> place;
};

Point lowerArrowOf(int id)
{
    const Rect bar = rectOf(verticalBarOf(id));
    return {bar.centre().x, bar.bottom() - 6};
}

const std::vector<Held>& allHeld()
{
    static const std::vector<Held> all{
        {kSpin, GUI_EVENT_TEXT_CHANGED,
         [] {
             const Rect box = rectOf(controlOf(kSpin));
             return Point{box.right() - 7, box.y + 6};
         }},
        {kText, GUI_EVENT_SCROLLED, [] { return lowerArrowOf(kText); }},
        {kTree, GUI_EVENT_SCROLLED, [] { return lowerArrowOf(kTree); }},
        {kSlider, GUI_EVENT_VALUE,
         [] {
             const Rect bar = rectOf(innerOf(kSlider));
             return Point{bar.right() - 8, bar.centre().y};
         }},
    };
    return all;
}

void fill()
{
    fillLines(kText, 60);
    fillItems(kTree, 60);
}

// Returns what the dialog was closed with.
int runHeld(const Held& held, const std::function<void()>& whenHeld)
{
    Recorder::instance().onEvent(GUI_EVENT_INIT, fill);
    if (guiDialog("") != 0) return -1;
    makeAllKinds();
    App::instance().whenShown("v_dlgbbr", [&](Shown) {
        Robot::instance().moveTo(held.place());
        Robot::instance().press();
        whenHeld();
    });
    const int code = guiRunDialog(Recorder::dialogHandler());
    holdsFor([] { return true; }, milliseconds{500});  // a time-out that is left would come now
    Robot::instance().release();
    return code;
}

// The frame still works, and can be closed.
void expectSurvived()
{
    EXPECT_FALSE(newestBoard());
    EXPECT_TRUE(wm::waitForFocus(App::instance().shell()));
    App::instance().key(XK_F5);
    EXPECT_TRUE(App::instance().waitForEvent(toWindow(GUI_EVENT_COMMAND, -5)));
    Recorder::instance().clear();
}

}  // namespace

GUI_TEST(Held, ControlsMayCloseTheDialogWhenTheyRepeat)
{
    for (const Held& held : allHeld()) {
        SCOPED_TRACE(held.kind);
        int count = 0;
        recorder.onEvent(held.event, held.kind, [&] {
            if (++count == 3) guiClose(5);
        });
        EXPECT_EQ(runHeld(held, [] {}), 5);
        expectSurvived();
    }
}

GUI_TEST(Held, ControlsMayGoWithTheDialogMeanwhile)
{
    for (const Held& held : allHeld()) {
        SCOPED_TRACE(held.kind);
        const auto closeMeanwhile = [&] {
            EXPECT_TRUE(pumpUntil([&] { return recorder.count(held.event) >= 2; }));
            guiClose(6);
        };
        EXPECT_EQ(runHeld(held, closeMeanwhile), 6);
        expectSurvived();
    }
}

// The mouse is released while the box is open: it is the box's, and the control would never hear of it.
GUI_TEST(Held, ControlsStopWhenABoxHasTakenTheRelease)
{
    for (const Held& held : allHeld()) {
        SCOPED_TRACE(held.kind);
        int boxes = 0;
        recorder.onEvent(held.event, [&] {
            if (boxes++ == 0) guiErrorBox("Enough");
        });
        app.whenShown("v_errorbox", [&](Shown box) {
            robot.release();
            box.key(XK_Return);
        });
        runHeld(held, [&] {
            EXPECT_TRUE(pumpUntil([&] { return boxes > 0 && !findWidget("v_errorbox"); }));
            settle();
            recorder.clear();
            EXPECT_TRUE(
                holdsFor([&] { return recorder.count(held.event) == 0; }, milliseconds{700}));
            guiClose(1);
        });
        EXPECT_EQ(boxes, 1);
    }
}

// The toolkit keeps the number of the last time-out of an arrow, and numbers are used again.
GUI_TEST(Held, ASpinBoxTakesNoTimeOutOfOthersWithIt)
{
    int served = 0;
    constexpr int kTimeOuts = 4;
    runDialog(makeAllKinds, [&](Shown dialog) {
        const Held& spin = allHeld().front();
        robot.moveTo(spin.place());
        robot.press();
        robot.release();
        EXPECT_TRUE(pumpUntil([&] { return recorder.count(spin.event) > 0; }));
        for (int i = 0; i < kTimeOuts; ++i)
            XtAppAddTimeOut(
                XtWidgetToApplicationContext(dialog.widget()), 300,
                [](XtPointer count, XtIntervalId*) { ++*static_cast<int*>(count); }, &served);
    });
    EXPECT_TRUE(pumpUntil([&] { return served == kTimeOuts; }));
}
