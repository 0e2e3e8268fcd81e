// guiUserBreak: Control+F10 while the host computes and the event loop stands still.

#include <X11/Xlib.h>

#include <thread>

#include "events_support.h"

using namespace kite::testing;
using ::testing::IsEmpty;

namespace {

struct Waiting {
    int type;
    int count;
};

Bool countOne(Display*, XEvent* event, XPointer argument)
{
    auto& waiting = *reinterpret_cast<Waiting*>(argument);
    waiting.count += event->type == waiting.type;
    return False;  // it stays in the queue
}

int waitingEvents(int type)
{
    Waiting waiting{type, 0};
    XEvent event;
    XCheckIfEvent(toolkit::display(), &event, countOne, reinterpret_cast<XPointer>(&waiting));
    return waiting.count;
}

// Without running the application: it is busy.
bool arrive(int type, int count)
{
    const auto end = std::chrono::steady_clock::now() + patience();
    while (waitingEvents(type) < count) {
        if (std::chrono::steady_clock::now() >= end) return false;
        std::this_thread::sleep_for(milliseconds{1});
    }
    return true;
}

struct Stroke {
    KeySym symbol;
    unsigned modifiers = NoModifier;
};

// The modifier keys are presses as well.
int pressesOf(const Stroke& stroke)
{
    return 1 + __builtin_popcount(stroke.modifiers);
}

// The user presses keys while the host computes; they wait in the queue then.
void pressWhileBusy(const std::vector<Stroke>& strokes)
{
    settle();
    int presses = 0;
    for (const Stroke& stroke : strokes) {
        Robot::instance().key(stroke.symbol, stroke.modifiers);
        presses += pressesOf(stroke);
    }
    EXPECT_TRUE(arrive(KeyPress, presses));
}

const Stroke kBreak{XK_F10, Control};

}  // namespace

GUI_TEST(UserBreak, IsOneOnceAfterControlF10)
{
    pressWhileBusy({kBreak});
    EXPECT_EQ(guiUserBreak(), 1);
    EXPECT_EQ(guiUserBreak(), 0);
}

GUI_TEST(UserBreak, IsZeroWithoutAnyKey)
{
    EXPECT_EQ(guiUserBreak(), 0);
}

GUI_TEST(UserBreak, CountsSeveralAsOne)
{
    pressWhileBusy({kBreak, kBreak, kBreak});
    EXPECT_EQ(guiUserBreak(), 1);
    EXPECT_EQ(guiUserBreak(), 0);
}

GUI_TEST(UserBreak, ComesAgainWithTheNextControlF10)
{
    for (int i = 0; i < 2; ++i) {
        pressWhileBusy({kBreak});
        EXPECT_EQ(guiUserBreak(), 1);
    }
}

GUI_TEST(UserBreak, IsFoundAmongOtherKeys)
{
    pressWhileBusy({{XK_a}, {XK_F2}, kBreak, {XK_b}});
    EXPECT_EQ(guiUserBreak(), 1);
    EXPECT_EQ(guiUserBreak(), 0);
}

GUI_TEST(UserBreak, TakesOtherModifiersAsWell)
{
    pressWhileBusy({{XK_F10, Control | Shift}});
    EXPECT_EQ(guiUserBreak(), 1);
}

GUI_TEST(UserBreak, NeedsBothControlAndF10)
{
    for (const Stroke& stroke :
         {Stroke{XK_F10}, Stroke{XK_F10, Shift}, Stroke{XK_F10, Alt}, Stroke{XK_F9, Control},
          Stroke{XK_F11, Control}, Stroke{XK_a, Control}}) {
        SCOPED_TRACE(::testing::Message() << stroke.symbol << " with " << stroke.modifiers);
        pressWhileBusy({stroke});
        EXPECT_EQ(guiUserBreak(), 0);
    }
}

GUI_TEST(UserBreak, OtherKeysAreLost)
{
    recorder.clear();
    pressWhileBusy({{XK_a}, {XK_F2}, kBreak, {XK_b}, {XK_F3}});
    guiUserBreak();
    EXPECT_EQ(waitingEvents(KeyPress), 0);
    settle();
    EXPECT_EQ(textOf(app.find("v_text")), "");
    EXPECT_THAT(recorder.events(), IsEmpty());
}

GUI_TEST(UserBreak, OtherKeysAreLostWithoutABreakToo)
{
    recorder.clear();
    pressWhileBusy({{XK_a}, {XK_F10}});
    EXPECT_EQ(guiUserBreak(), 0);
    settle();
    EXPECT_EQ(textOf(app.find("v_text")), "");
    EXPECT_THAT(recorder.events(), IsEmpty());
}

GUI_TEST(UserBreak, KeysAreNotLostWhenNobodyAsks)
{
    pressWhileBusy({{XK_a}});
    EXPECT_TRUE(pumpUntil([&] { return textOf(app.find("v_text")) == "a"; }));
}

GUI_TEST(UserBreak, LeavesTheMouseAlone)
{
    robot.moveTo(app.find("v_text"));
    settle();
    const int before = toolkit::received(ButtonPress);
    robot.click();
    EXPECT_TRUE(arrive(ButtonPress, 1));
    pressWhileBusy({});
    EXPECT_EQ(guiUserBreak(), 0);
    EXPECT_TRUE(pumpUntil([&] { return toolkit::received(ButtonPress) > before; }));
}

GUI_TEST(UserBreak, IsSeenInsideAHandler)
{
    int result = -1;
    recorder.onEvent(GUI_EVENT_COMMAND, -2, [&] {
        robot.key(XK_F10, Control);
        EXPECT_TRUE(arrive(KeyPress, 2));
        result = guiUserBreak();
    });
    app.key(XK_F2);
    EXPECT_EQ(result, 1);
}

GUI_TEST(UserBreak, IsSeenWhileABoxIsOpen)
{
    app.whenShown("v_infobox", [](Shown box) {
        EXPECT_TRUE(wm::waitForFocus(box.widget()));
        pressWhileBusy({kBreak});
        EXPECT_EQ(guiUserBreak(), 1);
        box.key(XK_Return);
    });
    guiInfoBox("Busy");
}

GUI_STARTUP_TEST(UserBreak, NeedsAWindow)
{
    EXPECT_EQ(guiUserBreak(), 0);
    app.run([] {
        guiClose(0);
        EXPECT_EQ(guiUserBreak(), 0);
    });
    EXPECT_EQ(guiUserBreak(), 0);
}

GUI_TEST(UserBreak, WithoutATopWindowTakesNoKeys)
{
    Widget const mainWindow = guiGetTopWnd();
    pressWhileBusy({kBreak});
    guiSetTopWnd(nullptr);
    EXPECT_EQ(guiUserBreak(), 0);
    guiSetTopWnd(mainWindow);
    EXPECT_EQ(guiUserBreak(), 1);
}
