// The pointer rests on a control.

#include <chrono>

#include "simple_controls_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

constexpr milliseconds kNothingComes{300};
constexpr milliseconds kDelay{400};
constexpr milliseconds kBehindTheDelay{600};

enum Id { kLabel = 1, kEdit, kButton, kCheck, kRadio, kImage, kLine, kOtherRadio };

void build()
{
    guiLabel(kLabel, 0, 20, 60, "Label");
    guiEdit(kEdit, 1, 20, 60, 0, 0);
    guiButton(kButton, 2, 20, 60, "Button", 0);
    guiCheck(kCheck, 3, 20, 60, "Check");
    guiRadio(kRadio, 4, 20, 60, "Radio");
    guiRadio(kOtherRadio, 5, 20, 60, "Radio");
    guiImage(kImage, 6, 1, 20, 60, 1);
    guiLine(kLine, 7, 2, 20, 60);
    guiLabel(-1, 9, 20, 60, "Anonymous");
}

Event hover(int id)
{
    return toDialog(GUI_EVENT_HOVER, id);
}

int hovers()
{
    return Recorder::instance().count(GUI_EVENT_HOVER);
}

// The board's left margin, where there is no control.
void leaveAllControls()
{
    Robot::instance().moveTo(newestBoard(), Point{2, 2});
}

void enter(int id)
{
    Robot::instance().moveTo(controlOf(id));
}

void runWithDelay(const char* seconds, const std::function<void(Shown)>& use)
{
    HostDouble::instance().profile().setString("mouse_hover", seconds);
    App::instance().run([&] {
        runDialog(build, [&](Shown dialog) {
            leaveAllControls();
            Recorder::instance().clear();
            use(dialog);
        });
    });
}

bool nothingComes(milliseconds time = kNothingComes)
{
    return holdsFor([] { return hovers() == 0; }, time);
}

}  // namespace

GUI_STARTUP_TEST(Hover, IsReportedForEveryControlThatHasAnId)
{
    runWithDelay("0", [this](Shown) {
        for (const int id : {kLabel, kEdit, kButton, kCheck, kRadio, kImage}) {
            recorder.clear();
            enter(id);
            EXPECT_TRUE(app.waitForEvent(hover(id))) << id;
            EXPECT_EQ(hovers(), 1);
            leaveAllControls();
        }
        EXPECT_THAT(without(GUI_EVENT_HOVER, recorder.events()), IsEmpty());
    });
}

GUI_STARTUP_TEST(Hover, IsNotReportedForLinesAndAnonymousLabels)
{
    runWithDelay("0", [](Shown) {
        enter(kLine);
        EXPECT_TRUE(nothingComes());
        Robot::instance().moveTo(findByLabel("Anonymous", newestBoard()));
        EXPECT_TRUE(nothingComes());
    });
}

GUI_STARTUP_TEST(Hover, ComesAfterTheDelayOfTheProfile)
{
    runWithDelay("0.4", [this](Shown) {
        const auto begin = std::chrono::steady_clock::now();
        enter(kCheck);
        EXPECT_TRUE(app.waitForEvent(hover(kCheck)));
        EXPECT_GE(std::chrono::steady_clock::now() - begin, kDelay - milliseconds{50});
    });
}

GUI_STARTUP_TEST(Hover, ComesOnceForEachEntering)
{
    runWithDelay("0", [this](Shown) {
        for (int times = 1; times <= 3; ++times) {
            enter(kCheck);
            EXPECT_TRUE(pumpUntil([&] { return hovers() == times; }));
            robot.moveTo(controlOf(kCheck), Point{9, 9});
            EXPECT_TRUE(holdsFor([&] { return hovers() == times; }, milliseconds{100}));
            leaveAllControls();
        }
    });
}

GUI_STARTUP_TEST(Hover, OfTheControlsOnTheWayIsNotReported)
{
    runWithDelay("1.5", [this](Shown) {
        for (const int id : {kLabel, kEdit, kButton, kCheck, kRadio}) enter(id);
        enter(kImage);
        EXPECT_TRUE(app.waitForEvent(hover(kImage)));
        EXPECT_EQ(hovers(), 1);
    });
}

GUI_STARTUP_TEST(Hover, EndsWhenThePointerLeaves)
{
    runWithDelay("0.4", [](Shown) {
        for (const int id : {kLabel, kEdit, kButton, kCheck, kRadio, kImage}) {
            enter(id);
            leaveAllControls();
        }
        EXPECT_TRUE(nothingComes(kBehindTheDelay));
    });
}

GUI_STARTUP_TEST(Hover, EndsWithTheControl)
{
    runWithDelay("0.4", [](Shown) {
        enter(kCheck);
        settle();
        XtDestroyWidget(controlOf(kCheck));
        EXPECT_TRUE(nothingComes(kBehindTheDelay));
    });
}

// The handler of the window on top knows other ids.
GUI_STARTUP_TEST(Hover, IsNotReportedUnderABox)
{
    runWithDelay("0.4", [this](Shown) {
        enter(kCheck);
        settle();
        app.whenShown("v_infobox", [](Shown box) {
            EXPECT_TRUE(nothingComes(kBehindTheDelay));
            box.key(XK_Return);
        });
        guiInfoBox("In between");
    });
}

GUI_STARTUP_TEST(Hover, EndsWhenTheControlIsOperated)
{
    runWithDelay("0.4", [this](Shown) {
        for (const int id : {kButton, kCheck, kOtherRadio}) {
            SCOPED_TRACE(id);
            recorder.clear();
            enter(id);
            robot.click(controlOf(id));
            EXPECT_GE(recorder.events().size(), 1U) << "the control's own event";
            EXPECT_TRUE(nothingComes(kBehindTheDelay));
            leaveAllControls();
        }
    });
}

// While the user holds it, too, and in controls that raise nothing then.
GUI_STARTUP_TEST(Hover, EndsWhenAMouseButtonIsPressed)
{
    runWithDelay("0.4", [this](Shown) {
        for (const int id : {kLabel, kEdit, kButton, kCheck, kRadio, kImage}) {
            SCOPED_TRACE(id);
            enter(id);
            robot.press();
            EXPECT_TRUE(nothingComes(kBehindTheDelay));
            robot.release();
            leaveAllControls();
        }
    });
}

GUI_STARTUP_TEST(Hover, EndsWhenTheUserTypes)
{
    runWithDelay("0.4", [this](Shown dialog) {
        ASSERT_TRUE(hasFocus(kEdit));
        enter(kEdit);
        dialog.type("x");
        EXPECT_TRUE(nothingComes(kBehindTheDelay)) << "where the pointer is";
        leaveAllControls();
        enter(kLabel);
        dialog.type("x");
        EXPECT_TRUE(nothingComes(kBehindTheDelay)) << "somewhere else";
        leaveAllControls();
        enter(kLabel);
        dialog.key(XK_F5);
        EXPECT_TRUE(nothingComes(kBehindTheDelay)) << "a special key";
        EXPECT_EQ(recorder.count(GUI_EVENT_KEY), 1);
    });
}

GUI_STARTUP_TEST(Hover, IsSwitchedOffByANegativeDelay)
{
    runWithDelay("-1", [](Shown) {
        for (const int id : {kLabel, kEdit, kButton, kCheck, kRadio, kImage}) enter(id);
        EXPECT_TRUE(nothingComes(kBehindTheDelay));
    });
}

// Two seconds when the profile says nothing that is a number.
GUI_STARTUP_TEST(Hover, ComesAfterTwoSecondsWithoutASetting)
{
    runWithDelay("soon", [this](Shown) {
        enter(kCheck);
        EXPECT_TRUE(nothingComes(milliseconds{1700}));
        EXPECT_TRUE(app.waitForEvent(hover(kCheck)));
    });
}

GUI_STARTUP_TEST(Hover, ThatWaitsIsGoneWhenTheDialogIs)
{
    host.profile().setString("mouse_hover", "0.4");
    app.run([] {
        runDialog(build, [](Shown) {
            leaveAllControls();
            Recorder::instance().clear();
            enter(kCheck);
        });
        EXPECT_TRUE(nothingComes(kBehindTheDelay));
    });
}

GUI_STARTUP_TEST(Hover, MayCloseTheDialog)
{
    host.profile().setString("mouse_hover", "0");
    app.run([&] {
        ASSERT_EQ(guiDialog(""), 0);
        build();
        robot.moveTo(Point{0, 0});
        app.whenShown("v_dlgbbr", [this](Shown) {
            recorder.onEvent(GUI_EVENT_HOVER, [] { guiClose(63); });
            enter(kButton);
        });
        EXPECT_EQ(guiRunDialog(recorder.dialogHandler()), 63);
    });
}
