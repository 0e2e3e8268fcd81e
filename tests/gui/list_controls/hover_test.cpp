// The pointer rests on a list, a choice or a combo box.

#include "list_controls_support.h"

using namespace kite::testing;

namespace {

constexpr milliseconds kNothingComes{300};

enum Id { kList = 1, kChoice, kCombo };

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
}

void runWithDelay(const char* seconds, const std::function<void(Shown)>& use)
{
    HostDouble::instance().profile().setString("mouse_hover", seconds);
    App::instance().run([&] {
        runDialog({.build =
                       [] {
                           guiList(kList, 0, 4, 10, 60, GUI_BROWSE);
                           guiChoice(kChoice, 5, 10, 60);
                           guiCombo(kCombo, 7, 10, 60);
                       },
                   .fill =
                       [] {
                           for (const int id : {kList, kChoice, kCombo}) appendItems(id, 9);
                       },
                   .use =
                       [&](Shown dialog) {
                           leaveAllControls();
                           settle();
                           Recorder::instance().clear();
                           use(dialog);
                       }});
    });
}

// The last one is the arrow of the box.
std::vector<std::pair<Widget, Point>> spotsOf(int id)
{
    if (id == kList) return {{listOf(id), Point{20, 20}}};
    const Rect box = placeOf(controlOf(id));
    return {{fieldOf(id), Point{20, 5}}, {controlOf(id), Point{box.width - 8, box.height / 2}}};
}

}  // namespace

GUI_STARTUP_TEST(ListHover, IsReportedOnEachPart)
{
    runWithDelay("0", [this](Shown) {
        for (const int id : {kList, kChoice, kCombo})
            for (const auto& [widget, spot] : spotsOf(id)) {
                SCOPED_TRACE(std::to_string(id) + " " + XtName(widget));
                recorder.clear();
                robot.moveTo(widget, spot);
                EXPECT_TRUE(app.waitForEvent(hover(id)));
                settle();
                EXPECT_EQ(hovers(), recorder.count(hover(id)));
                leaveAllControls();
                settle();
            }
    });
}

GUI_STARTUP_TEST(ListHover, IsNotReportedWhenThePointerHasGone)
{
    runWithDelay("0.4", [this](Shown) {
        for (const int id : {kList, kChoice, kCombo}) {
            const auto [widget, spot] = spotsOf(id).front();
            robot.moveTo(widget, spot);
            settle();
        }
        leaveAllControls();
        EXPECT_TRUE(holdsFor([] { return hovers() == 0; }, milliseconds{600}));
    });
}

GUI_STARTUP_TEST(ListHover, IsNotReportedAfterWork)
{
    runWithDelay("0.5", [this](Shown dialog) {
        clickItem(kList, 1);
        EXPECT_TRUE(holdsFor([] { return hovers() == 0; }, milliseconds{700})) << "click";
        leaveAllControls();
        robot.moveTo(fieldOf(kCombo), Point{20, 5});
        dialog.key(XK_Tab);
        dialog.key(XK_Tab);
        EXPECT_TRUE(hasFocus(fieldOf(kCombo)));
        leaveAllControls();
        settle();
        recorder.clear();
        robot.moveTo(fieldOf(kCombo), Point{20, 5});
        dialog.type("x");
        EXPECT_TRUE(holdsFor([] { return hovers() == 0; }, milliseconds{700})) << "typing";
    });
}

GUI_STARTUP_TEST(ListHover, IsOffWithANegativeDelay)
{
    runWithDelay("-1", [this](Shown) {
        for (const int id : {kList, kChoice, kCombo}) {
            const auto [widget, spot] = spotsOf(id).front();
            robot.moveTo(widget, spot);
            EXPECT_TRUE(holdsFor([] { return hovers() == 0; }, kNothingComes));
        }
    });
}
