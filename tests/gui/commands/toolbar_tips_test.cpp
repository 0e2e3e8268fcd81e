// Tooltips of toolbar buttons, by resting the pointer.

#include <Xm/Label.h>

#include "commands_support.h"
#include "connection.h"

using namespace kite::testing;

namespace {

constexpr milliseconds kNoTip{250};  // well above the delays of these tests

Widget tip()
{
    return findWidget("v_tooltip");
}

bool isTipShown(const std::string& text)
{
    return pumpUntil([&] {
        return tip() && XtIsRealized(tip()) && isViewable(windowOf(tip())) &&
               labelOf(tip()) == text;
    });
}

bool isTipGone()
{
    return pumpUntil([] { return !tip(); });
}

bool noTipComes()
{
    return holdsFor([] { return !tip(); }, kNoTip);
}

void restOn(std::size_t button)
{
    Robot::instance().moveTo(rectOf(toolbarButtons().at(button)).centre());
}

void restElsewhere()
{
    Robot::instance().moveTo(rectOf(findWidget("v_statusbar")).centre());
}

// Buttons 1 "Open", 2 "Wrap" (a check), 3 without a tip.
void buildTipButtons()
{
    guiMenu("Menu");
    guiMenuItem("Item", 0, GUI_PLAIN, 1);
    guiMenuEnd();
    addImage("image");
    char text[] = "Open";
    guiToolbarButton("image", text, GUI_PLAIN, 1);
    text[0] = 'X';  // the library has a copy
    guiToolbarButton("image", "Wrap", GUI_CHECK, 2);
    guiToolbarButton("image", nullptr, GUI_PLAIN, 3);
}

void withButtons(const char* delay, const std::function<void()>& body)
{
    HostDouble::instance().profile().setString("mouse_hover", delay);
    buildThenRun(buildTipButtons, [&] {
        restElsewhere();
        body();
    });
}

}  // namespace

GUI_STARTUP_TEST(ToolbarTips, ComeAndGoWithThePointer)
{
    withButtons("0.05", [&] {
        restOn(0);
        ASSERT_TRUE(isTipShown("Open"));
        EXPECT_EQ(rectOf(tip()).y, pointerPosition().y + 20 + 1);
        EXPECT_EQ(rectOf(tip()).x, pointerPosition().x + 1);
        restOn(1);
        EXPECT_TRUE(isTipShown("Wrap"));
        EXPECT_EQ(findWidgets("v_tooltip").size(), 1U);
        restOn(2);
        EXPECT_TRUE(isTipGone());
        EXPECT_TRUE(noTipComes());
        restOn(0);
        ASSERT_TRUE(isTipShown("Open"));
        restElsewhere();
        EXPECT_TRUE(isTipGone());
    });
}

GUI_STARTUP_TEST(ToolbarTips, NoneWithoutADelay)
{
    withButtons("-1", [] {
        restOn(0);
        EXPECT_TRUE(noTipComes());
    });
}

GUI_STARTUP_TEST(ToolbarTips, NoneOnceTheUserHasActed)
{
    withButtons("0.1", [&] {
        robot.click(toolbarButtons().front());
        EXPECT_TRUE(noTipComes());
        restOn(1);
        robot.click(toolbarButtons().at(1));
        EXPECT_TRUE(noTipComes());
    });
}

GUI_STARTUP_TEST(ToolbarTips, NoneOfGreyedButtons)
{
    withButtons("0.05", [&] {
        restOn(0);
        ASSERT_TRUE(isTipShown("Open"));
        guiEnableCommand(1, 0);
        EXPECT_TRUE(isTipGone());
        restElsewhere();
        restOn(0);
        EXPECT_TRUE(noTipComes());
        guiEnableCommand(1, 1);
        restElsewhere();
        restOn(0);
        EXPECT_TRUE(isTipShown("Open"));
        // Another button's tip stays.
        guiEnableCommand(2, 0);
        settle();
        EXPECT_TRUE(tip());
    });
}

GUI_STARTUP_TEST(ToolbarTips, WaitingOnesGoWithTheirButton)
{
    withButtons("0.1", [&] {
        restOn(0);
        settle();
        guiEnableCommand(1, 0);
        EXPECT_TRUE(noTipComes());
        restOn(1);
        settle();
        XtDestroyWidget(toolbarButtons().at(1));
        EXPECT_TRUE(noTipComes());
    });
}

GUI_STARTUP_TEST(ToolbarTips, ShownOnesGoWithTheirButton)
{
    withButtons("0.05", [&] {
        restOn(1);
        ASSERT_TRUE(isTipShown("Wrap"));
        XtDestroyWidget(toolbarButtons().at(1));
        EXPECT_TRUE(isTipGone());
        restOn(0);
        ASSERT_TRUE(isTipShown("Open"));
        guiRestart();
        EXPECT_TRUE(isTipGone());
    });
}

GUI_STARTUP_TEST(ToolbarTips, NoneOfTipsThatWereTooLong)
{
    host.profile().setString("mouse_hover", "0.05");
    const std::string longest(63, 't');
    buildThenRun(
        [&] {
            addImage("image");
            EXPECT_MISUSE(guiToolbarButton("image", std::string(64, 't').c_str(), GUI_PLAIN, 1),
                          "ToolbarButton: invalid tooltip for button 1", 1);
            guiToolbarButton("image", longest.c_str(), GUI_PLAIN, 2);
        },
        [&] {
            restElsewhere();
            restOn(0);
            EXPECT_TRUE(noTipComes());
            restOn(1);
            EXPECT_TRUE(isTipShown(longest));
        });
}
