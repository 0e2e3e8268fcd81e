// The tooltip: what a toolbar button does when the pointer comes and goes.

#include <Xm/Label.h>

#include <chrono>

#include "connection.h"
#include "frame/hover.h"
#include "gui_test.h"

using namespace kite::testing;
namespace hover = kite::hover;

namespace {

// As long as no tip may appear; every test that uses it has a delay well below.
constexpr milliseconds kNoTip{300};

Widget tip()
{
    return findWidget("v_tooltip");
}

// It floats above the widgets that the window lays out: unmanaged, but to be seen.
bool isTipVisible()
{
    return tip() && XtIsRealized(tip()) && isViewable(windowOf(tip()));
}

bool isTipShown()
{
    return pumpUntil(isTipVisible);
}

bool isTipGone()
{
    return pumpUntil([] { return !tip(); });
}

bool noTipComes()
{
    return holdsFor([] { return !tip(); }, kNoTip);
}

milliseconds timeUntilTip()
{
    const auto begin = std::chrono::steady_clock::now();
    hover::enterWithTip("Tip");
    EXPECT_TRUE(isTipShown());
    return std::chrono::duration_cast<milliseconds>(std::chrono::steady_clock::now() - begin);
}

void setDelaySetting(const char* seconds)
{
    HostDouble::instance().profile().setString("mouse_hover", seconds);
}

void comeAndGo()
{
    hover::enterWithTip("Tip");
    settle();
    hover::leave();
    EXPECT_TRUE(isTipGone());
}

}  // namespace

GUI_STARTUP_TEST(Tooltip, IsALabelOfTheTopWindow)
{
    setDelaySetting("0");
    app.run([] {
        hover::enterWithTip("Save the file");
        ASSERT_TRUE(isTipShown());
        EXPECT_EQ(XtClass(tip()), xmLabelWidgetClass);
        EXPECT_EQ(XtParent(tip()), guiGetTopWnd());
        EXPECT_EQ(labelOf(tip()), "Save the file");
        EXPECT_EQ(resource<Dimension>(tip(), XmNborderWidth), 1);
    });
}

// The blue is so near to full that a screen of 24 bits shows white.
GUI_STARTUP_TEST(Tooltip, IsBlackOnALightBackground)
{
    setDelaySetting("0");
    app.run([] {
        hover::enterWithTip("Tip");
        ASSERT_TRUE(isTipShown());
        EXPECT_EQ(screen::colourOf(tip(), resource<Pixel>(tip(), XmNbackground)),
                  screen::colourNamed("rgb:ffff/ffff/ffaa"));
        EXPECT_EQ(screen::colourOf(tip(), resource<Pixel>(tip(), XmNforeground)),
                  screen::colourNamed("black"));
        const screen::Colour black = screen::colourNamed("black");
        ASSERT_TRUE(pumpUntil([&] { return screen::grab(tip()).count(black) > 0; }));
        EXPECT_EQ(screen::grab(tip()).colours().front(), screen::colourNamed("rgb:ffff/ffff/ffaa"));
    });
}

GUI_STARTUP_TEST(Tooltip, StandsBelowThePointer)
{
    setDelaySetting("0");
    app.run([] {
        const Rect frame = rectOf(findWidget("v_mainwnd"));
        for (const Point offset : {Point{60, 40}, {0, 0}, {200, 150}}) {
            Robot::instance().moveTo(Point{frame.x + offset.x, frame.y + offset.y});
            hover::enterWithTip("Tip");
            ASSERT_TRUE(isTipShown());
            EXPECT_EQ(resource<Position>(tip(), XmNx), offset.x);
            EXPECT_EQ(resource<Position>(tip(), XmNy), offset.y + 20);
            const Rect rect = rectOf(tip());  // within its border
            EXPECT_EQ(rect.x, frame.x + offset.x + 1);
            EXPECT_EQ(rect.y, frame.y + offset.y + 21);
            hover::leave();
            ASSERT_TRUE(isTipGone());
        }
    });
}

// Where the pointer is when the time is over, not where it was.
GUI_STARTUP_TEST(Tooltip, FollowsThePointerWhileItWaits)
{
    setDelaySetting("0.1");
    app.run([] {
        const Rect frame = rectOf(findWidget("v_mainwnd"));
        Robot::instance().moveTo(Point{frame.x + 10, frame.y + 10});
        hover::enterWithTip("Tip");
        Robot::instance().moveTo(Point{frame.x + 30, frame.y + 40});
        ASSERT_TRUE(isTipShown());
        EXPECT_EQ(resource<Position>(tip(), XmNx), 30);
        EXPECT_EQ(resource<Position>(tip(), XmNy), 60);
    });
}

GUI_STARTUP_TEST(Tooltip, GoesWhenThePointerLeaves)
{
    setDelaySetting("0");
    app.run([] {
        hover::enterWithTip("Tip");
        ASSERT_TRUE(isTipShown());
        hover::leave();
        EXPECT_TRUE(isTipGone());
    });
}

GUI_STARTUP_TEST(Tooltip, NeverComesWhenThePointerLeavesInTime)
{
    setDelaySetting("0.1");
    app.run([] {
        hover::enterWithTip("Tip");
        hover::leave();
        EXPECT_TRUE(noTipComes());
    });
}

GUI_STARTUP_TEST(Tooltip, NeverComesWhenTheUserActs)
{
    setDelaySetting("0.1");
    app.run([] {
        hover::enterWithTip("Tip");
        hover::cancel();
        EXPECT_TRUE(noTipComes());
    });
}

GUI_STARTUP_TEST(Tooltip, StaysWhenTheUserActsLater)
{
    setDelaySetting("0");
    app.run([] {
        hover::enterWithTip("Tip");
        ASSERT_TRUE(isTipShown());
        hover::cancel();
        EXPECT_TRUE(holdsFor(isTipVisible, milliseconds{50}));
    });
}

GUI_STARTUP_TEST(Tooltip, OfTheNextButtonReplacesTheOneThatWaits)
{
    setDelaySetting("0.1");
    app.run([] {
        hover::enterWithTip("first");
        hover::enterWithTip("second");
        ASSERT_TRUE(isTipShown());
        EXPECT_EQ(labelOf(tip()), "second");
        EXPECT_TRUE(holdsFor([] { return findWidgets("v_tooltip").size() == 1; }, kNoTip));
    });
}

GUI_STARTUP_TEST(Tooltip, LeavingWithoutATipIsSafe)
{
    setDelaySetting("0");
    app.run([] {
        hover::leave();
        hover::cancel();
        hover::leave();
        EXPECT_EQ(tip(), nullptr);
    });
}

GUI_STARTUP_TEST(Tooltip, EndsWithTheFrame)
{
    setDelaySetting("0.1");
    app.run([] { hover::enterWithTip("Tip"); });
    app.run([] { EXPECT_TRUE(noTipComes()); });
}

// The tip belongs to the box; the next pointer movement must not look for it there.
GUI_STARTUP_TEST(Tooltip, GoesWithTheBoxThatItStandsOn)
{
    setDelaySetting("0");
    app.run([&] {
        app.whenShown("v_infobox", [](Shown box) {
            hover::enterWithTip("Tip");
            EXPECT_TRUE(isTipShown());
            EXPECT_EQ(XtParent(tip()), box.widget());
            box.key(XK_Return);
        });
        guiInfoBox("A box.");
        EXPECT_TRUE(isTipGone());
        hover::leave();
    });
}

GUI_STARTUP_TEST(Tooltip, OfTheWindowBelowGoesWhileABoxIsOpen)
{
    setDelaySetting("0");
    app.run([&] {
        hover::enterWithTip("Tip");
        ASSERT_TRUE(isTipShown());
        app.whenShown("v_infobox", [](Shown box) {
            hover::leave();
            EXPECT_TRUE(isTipGone());
            box.key(XK_Return);
        });
        guiInfoBox("A box.");
    });
}

GUI_STARTUP_TEST(Tooltip, NeedsAFrame)
{
    hover::enterWithTip("Tip");
    hover::cancel();
    hover::leave();
    app.run([] { EXPECT_TRUE(noTipComes()); });
}

GUI_STARTUP_TEST(TooltipDelay, IsTwoSecondsByDefault)
{
    app.run([] { EXPECT_GE(timeUntilTip(), milliseconds{1990}); });
}

GUI_STARTUP_TEST(TooltipDelay, IsTwoSecondsForWhatIsNoNumber)
{
    setDelaySetting("soon");
    app.run([] { EXPECT_GE(timeUntilTip(), milliseconds{1990}); });
}

GUI_STARTUP_TEST(TooltipDelay, IsTheSettingInSeconds)
{
    setDelaySetting("0.5");
    app.run([] {
        const milliseconds time = timeUntilTip();
        EXPECT_GE(time, milliseconds{490});
        EXPECT_LT(time, milliseconds{1990});
    });
}

GUI_STARTUP_TEST(TooltipDelay, TakesTheNumberAtTheBeginning)
{
    setDelaySetting(" 0.25 seconds");
    app.run([] {
        const milliseconds time = timeUntilTip();
        EXPECT_GE(time, milliseconds{240});
        EXPECT_LT(time, milliseconds{1990});
    });
}

GUI_STARTUP_TEST(TooltipDelay, OfZeroShowsAtOnce)
{
    setDelaySetting("0");
    app.run([] { EXPECT_LT(timeUntilTip(), milliseconds{1990}); });
}

GUI_STARTUP_TEST(TooltipDelay, OfMinusOneShowsNone)
{
    setDelaySetting("-1");
    app.run([] {
        hover::enterWithTip("Tip");
        EXPECT_TRUE(noTipComes());
    });
}

GUI_STARTUP_TEST(TooltipDelay, JustBelowZeroShowsNone)
{
    setDelaySetting("-0.001");
    app.run([] {
        hover::enterWithTip("Tip");
        EXPECT_TRUE(noTipComes());
    });
}

GUI_STARTUP_TEST(TooltipDelay, OfAVeryLongTimeIsSafe)
{
    setDelaySetting("1e30");
    app.run(comeAndGo);
}

GUI_STARTUP_TEST(TooltipDelay, OfAVeryNegativeTimeIsSafe)
{
    setDelaySetting("-1e30");
    app.run(comeAndGo);
}

GUI_STARTUP_TEST(TooltipDelay, OfInfiniteTimeIsSafe)
{
    setDelaySetting("inf");
    app.run(comeAndGo);
}

GUI_STARTUP_TEST(TooltipDelay, OfNoTimeIsSafe)
{
    setDelaySetting("nan");
    app.run(comeAndGo);
}
