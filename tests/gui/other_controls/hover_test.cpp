// The pointer rests on a control.

#include "other_controls_support.h"

using namespace kite::testing;
using ::testing::IsEmpty;

namespace {

constexpr milliseconds kBehindTheDelay{600};

Event hover(int id)
{
    return toDialog(GUI_EVENT_HOVER, id);
}

int hovers()
{
    return Recorder::instance().count(GUI_EVENT_HOVER);
}

void leaveAllControls()
{
    Robot::instance().moveTo(newestBoard(), Point{2, 2});
    settle();
}

void runWithDelay(const char* seconds, const std::function<void(Shown)>& use)
{
    HostDouble::instance().profile().setString("mouse_hover", seconds);
    App::instance().run([&] {
        runFilled(
            makeAllKinds, [] { fillItems(kTree, 3); },
            [&](Shown dialog) {
                leaveAllControls();
                Recorder::instance().clear();
                use(dialog);
            });
    });
}

bool nothingComes()
{
    return holdsFor([] { return hovers() == 0; }, kBehindTheDelay);
}

}  // namespace

GUI_STARTUP_TEST(OtherControlHover, IsReportedForEachKind)
{
    runWithDelay("0", [this](Shown) {
        for (const KindOfControl& kind : allKinds()) {
            SCOPED_TRACE(kind.call);
            recorder.clear();
            robot.moveTo(innerOf(kind.kind), Point{7, 7});
            EXPECT_TRUE(app.waitForEvent(hover(kind.kind)));
            leaveAllControls();
        }
        EXPECT_THAT(without(GUI_EVENT_HOVER, recorder.events()), IsEmpty());
    });
}

// A spin box has parts, each of which is the control.
GUI_STARTUP_TEST(OtherControlHover, IsReportedForTheArrowsOfASpinBox)
{
    runWithDelay("0", [this](Shown) {
        const Rect box = placeOf(controlOf(kSpin));
        robot.moveTo(controlOf(kSpin), Point{box.width - 6, box.height / 2});
        EXPECT_TRUE(app.waitForEvent(hover(kSpin)));
    });
}

// Below its last item a tree goes on.
GUI_STARTUP_TEST(OtherControlHover, IsReportedBelowTheItemsOfATree)
{
    runWithDelay("0", [this](Shown) {
        const Rect tree = rectOf(viewOf(kTree));
        robot.moveTo(Point{tree.centre().x, tree.bottom() - 3});
        EXPECT_TRUE(app.waitForEvent(hover(kTree)));
    });
}

GUI_STARTUP_TEST(OtherControlHover, EndsWhenTheControlIsOperated)
{
    runWithDelay("0.4", [this](Shown dialog) {
        for (const KindOfControl& kind : allKinds()) {
            SCOPED_TRACE(kind.call);
            leaveAllControls();
            recorder.clear();
            robot.click(innerOf(kind.kind), LeftButton, Point{7, 7});
            EXPECT_TRUE(nothingComes()) << "clicked";
        }
        for (const Kind kind : {kText, kSpin}) {
            SCOPED_TRACE(kind);
            guiSetFocus(kind);
            ASSERT_TRUE(waitForKeyboard(kind));
            leaveAllControls();
            recorder.clear();
            robot.moveTo(innerOf(kind), Point{7, 7});
            dialog.type("1");
            EXPECT_TRUE(nothingComes()) << "typed";
        }
    });
}

GUI_STARTUP_TEST(OtherControlHover, EndsWhenThePointerLeaves)
{
    runWithDelay("0.4", [this](Shown) {
        for (const KindOfControl& kind : allKinds()) {
            robot.moveTo(innerOf(kind.kind), Point{7, 7});
            leaveAllControls();
        }
        EXPECT_TRUE(nothingComes());
    });
}
