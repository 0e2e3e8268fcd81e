// The end of the note at the pointer, and what guiTipBox returns.

#include "box_kinds.h"

#include <algorithm>

using namespace kite::testing;

namespace {

const Point kPointerPlace{600, 500};
constexpr milliseconds kAWhile{300};  // longer than any event is on its way

int tipEndedBy(const std::function<void(Shown)>& user)
{
    Robot::instance().moveTo(kPointerPlace);
    settle();
    Script::instance().whenShown("p_menu", user);
    return guiTipBox("A note");
}

void leave()
{
    Robot::instance().moveTo({kPointerPlace.x - 200, kPointerPlace.y - 200});
    settle();
}

bool isNoteShown()
{
    const std::vector<Widget> notes = findWidgets("p_menu");
    return std::ranges::any_of(notes, isShown);
}

}  // namespace

GUI_TEST(TipEnd, PressOnTheNote)
{
    EXPECT_EQ(tipEndedBy([&](Shown) {
                  robot.click();
                  settle();
              }),
              0);
    EXPECT_FALSE(isNoteShown());
}

GUI_TEST(TipEnd, PressOfAnyButton)
{
    for (const unsigned button : {LeftButton, MiddleButton, RightButton}) {
        EXPECT_EQ(tipEndedBy([&](Shown) {
                      robot.click(button);
                      settle();
                  }),
                  0)
            << button;
        EXPECT_FALSE(isNoteShown());
    }
}

GUI_TEST(TipEnd, PointerLeaves)
{
    EXPECT_EQ(tipEndedBy([](Shown) { leave(); }), 0);
    EXPECT_FALSE(isNoteShown());
}

// From the rim of the note onto its text.
GUI_TEST(TipEnd, PointerGoesIntoTheNote)
{
    EXPECT_EQ(tipEndedBy([&](Shown note) {
                  robot.moveTo(rectOf(note.child("v_dlglabel")).centre());
                  settle();
              }),
              0);
    EXPECT_FALSE(isNoteShown());
}

GUI_TEST(TipEnd, EscapeTakesItDown)
{
    EXPECT_EQ(tipEndedBy([](Shown) { Robot::instance().keyHandled(XK_Escape); }),
              GUI_TIP_TAKEN_DOWN);
    EXPECT_FALSE(isNoteShown());
}

// The pointer is no longer on the note, and nobody has told it.
GUI_TEST(TipEnd, TakenDownByTheToolkit)
{
    EXPECT_EQ(tipEndedBy([](Shown note) { XtUnmanageChild(note.widget()); }), GUI_TIP_TAKEN_DOWN);
    EXPECT_FALSE(isNoteShown());
}

GUI_TEST(TipEnd, ClickElsewhere)
{
    const int result = tipEndedBy([&](Shown) {
        leave();
        robot.click();
        settle();
    });
    EXPECT_TRUE(result == 0 || result == GUI_TIP_TAKEN_DOWN) << result;
    EXPECT_FALSE(isNoteShown());
}

GUI_TEST(TipEnd, NeverComesWhileThePointerRests)
{
    const int result = tipEndedBy([](Shown note) {
        EXPECT_TRUE(holdsFor([&] { return isShown(note.widget()); }, kAWhile));
        leave();
    });
    EXPECT_EQ(result, 0);
}

GUI_TEST(TipEnd, TimerGoesOnMeanwhile)
{
    recorder.clear();
    tipEndedBy([&](Shown) {
        guiTimer(100);
        EXPECT_TRUE(app.waitForEvent(toWindow(GUI_EVENT_TIMER)));
        guiTimer(0);
        leave();
    });
}

GUI_TEST(TipEnd, DestroyedNoteIsTakenDown)
{
    EXPECT_EQ(tipEndedBy([](Shown note) { XtDestroyWidget(note.widget()); }), GUI_TIP_TAKEN_DOWN);
}

GUI_TEST(TipEnd, ClosedFrameTakesItDown)
{
    EXPECT_EQ(tipEndedBy([](Shown) { guiClose(0); }), GUI_TIP_TAKEN_DOWN);
    EXPECT_FALSE(guiGetTopWnd());
    EXPECT_EQ(guiTipBox("Too late"), 0);
}

GUI_TEST(TipEnd, EachNoteHasItsOwnResult)
{
    EXPECT_EQ(tipEndedBy([](Shown) { Robot::instance().keyHandled(XK_Escape); }),
              GUI_TIP_TAKEN_DOWN);
    EXPECT_EQ(tipEndedBy([](Shown) { leave(); }), 0);
    EXPECT_EQ(tipEndedBy([](Shown) { Robot::instance().keyHandled(XK_Escape); }),
              GUI_TIP_TAKEN_DOWN);
}

// They share one result: what ends the inner note ends the outer one.
GUI_TEST(TipEnd, InnerNoteEndsTheOuterOne)
{
    int inner = -5;
    EXPECT_EQ(tipEndedBy([&](Shown) { inner = tipEndedBy([](Shown) { leave(); }); }), 0);
    EXPECT_EQ(inner, 0);
    EXPECT_FALSE(isNoteShown());
}

GUI_TEST(TipEnd, BoxWaitsOnBehindANote)
{
    for (const BoxKind& kind : allBoxes()) {
        const int answer = whileShown(kind, [](Shown box) {
            EXPECT_EQ(tipEndedBy([](Shown) { leave(); }), 0);
            EXPECT_TRUE(isShown(box.widget()));
            EXPECT_EQ(guiGetTopWnd(), box.widget());
        });
        EXPECT_EQ(answer, kind.choices.front().answer);
    }
}

GUI_TEST(TipEnd, BoxBehindANoteCanBeAnsweredByMouse)
{
    app.whenShown("v_askbox", [](Shown box) {
        tipEndedBy([](Shown) { leave(); });
        box.click("No");
    });
    EXPECT_EQ(guiYesNoBox("Really?"), 0);
}

GUI_TEST(TipEnd, FrameIsUsableAgainAfterwards)
{
    tipEndedBy([](Shown) { leave(); });
    app.click("v_text");
    app.key(XK_F3);
    EXPECT_TRUE(app.waitForEvent(toWindow(GUI_EVENT_COMMAND, GUI_COMMAND_F1 - 2)));
}

GUI_TEST(TipEnd, ManyNotesDoNotPileUp)
{
    constexpr int kMany = 200;
    const auto user = script.wheneverShown("p_menu", [](Shown) { leave(); });
    const auto note = [&] {
        robot.moveTo(kPointerPlace);
        settle();
        EXPECT_EQ(guiTipBox("Once more"), 0);
    };
    for (int i = 0; i < 3; ++i) note();
    const int before = widgetCount();
    for (int i = 0; i < kMany; ++i) note();
    EXPECT_EQ(widgetCount(), before);
}
