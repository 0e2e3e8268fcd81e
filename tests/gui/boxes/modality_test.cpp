// What goes on, and what does not, while a box is shown.

#include "box_kinds.h"

#include <unistd.h>

using namespace kite::testing;

namespace {

void readByte(XtPointer count, int* source, XtInputId*)
{
    char byte = 0;
    if (read(*source, &byte, 1) == 1) ++*static_cast<int*>(count);
}

Boolean work(XtPointer count)
{
    ++*static_cast<int*>(count);
    return True;
}

}  // namespace

GUI_TEST(BoxModality, BoxIsTheTopWindow)
{
    Widget const main = app.find("v_mainwnd");
    EXPECT_EQ(guiGetTopWnd(), main);
    for (const BoxKind& kind : allBoxes()) {
        whileShown(kind, [](Shown box) { EXPECT_EQ(guiGetTopWnd(), box.widget()); });
        EXPECT_EQ(guiGetTopWnd(), main) << kind.call;
    }
}

GUI_TEST(BoxModality, TopWindowOfTheHostComesBack)
{
    Widget const chosen = app.find("v_statusbar");
    guiSetTopWnd(chosen);
    for (const BoxKind& kind : allBoxes()) {
        whileShown(kind, [&](Shown box) { EXPECT_EQ(XtParent(box.shell()), chosen); });
        EXPECT_EQ(guiGetTopWnd(), chosen) << kind.call;
    }
    guiSetTopWnd(app.find("v_mainwnd"));
}

GUI_TEST(BoxModality, TimerGoesToTheHostCallback)
{
    for (const BoxKind& kind : allBoxes()) {
        whileShown(kind, [&](Shown) {
            recorder.clear();
            guiTimer(100);
            EXPECT_TRUE(app.waitForEvent(toHost(GUI_EVENT_TIMER)));
            EXPECT_EQ(recorder.count(toWindow(GUI_EVENT_TIMER)), 0);
        });
        recorder.clear();
        EXPECT_TRUE(app.waitForEvent(toWindow(GUI_EVENT_TIMER))) << kind.call;
        EXPECT_EQ(recorder.count(toHost(GUI_EVENT_TIMER)), 0) << kind.call;
        guiTimer(0);
    }
}

GUI_TEST(BoxModality, InputsAndWorkGoOn)
{
    XtAppContext const context = toolkit::context();
    for (const BoxKind& kind : allBoxes()) {
        int ends[2] = {};
        ASSERT_EQ(pipe(ends), 0);
        int bytes = 0;
        int works = 0;
        XtInputId const input = XtAppAddInput(
            context, ends[0], reinterpret_cast<XtPointer>(XtInputReadMask), readByte, &bytes);
        // Answered from a step of its own: until then it is the box that takes them.
        script.inOrder({script.shown(kind.widget,
                                     [&](Shown) {
                                         XtAppAddWorkProc(context, work, &works);
                                         EXPECT_EQ(write(ends[1], "x", 1), 1);
                                     }),
                        {"both have been taken", [&] { return bytes == 1 && works == 1; },
                         [&] { Shown{findWidget(kind.widget)}.key(XK_Return); }}});
        EXPECT_EQ(kind.ask("Working"), kind.choices.front().answer);
        XtRemoveInput(input);
        close(ends[0]);
        close(ends[1]);
    }
}

GUI_TEST(BoxModality, FrameIsUsableAgainAfterwards)
{
    for (const BoxKind& kind : allBoxes()) whileShown(kind, [](Shown) {});
    ASSERT_TRUE(wm::waitForFocus(app.shell()));
    app.click("v_text");
    app.key(XK_F2);
    EXPECT_TRUE(app.waitForEvent(toWindow(GUI_EVENT_COMMAND, GUI_COMMAND_F1 - 1)));
}

GUI_TEST(BoxModality, FrameIsPaintedWhileABoxIsShown)
{
    whileShown(boxKind("guiInfoBox"), [](Shown) {
        guiSetProgress(70);
        guiSetStatusLine("busy");
        settle();
        EXPECT_EQ(labelOf(findWidget("v_sline")), "busy");
        const screen::Picture busy = screen::grab(findWidget("v_statusbar"));
        guiSetStatusLine("");
        settle();
        EXPECT_NE(busy, screen::grab(findWidget("v_statusbar")));
    });
}

GUI_TEST(BoxModality, RestartInsideABoxLeavesItWaiting)
{
    for (const BoxKind& kind : allBoxes()) {
        const int answer = whileShown(kind, [](Shown box) {
            guiRestart();
            settle();
            EXPECT_TRUE(isShown(box.widget()));
            EXPECT_EQ(guiGetTopWnd(), box.widget());
        });
        EXPECT_EQ(answer, kind.choices.front().answer);
        EXPECT_EQ(guiGetTopWnd(), findWidget("v_mainwnd"));
    }
}

// It comes up with the frame or without it: the user gets at it when he fetches the frame.
GUI_TEST(BoxModality, BoxOfAnIconifiedFrameCanBeAnswered)
{
    for (const BoxKind& kind : allBoxes()) {
        wm::iconify(app.shell());
        ASSERT_TRUE(pumpUntil([&] { return wm::stateOf(app.shell()) == wm::State::Iconic; }));
        app.when(
            "the box is made",
            [&] {
                Widget const box = findWidget(kind.widget);
                return box && XtIsManaged(box);
            },
            [&] { wm::deiconify(app.shell()); });
        EXPECT_EQ(whileShown(kind, [](Shown) {}), kind.choices.front().answer);
        ASSERT_TRUE(wm::waitUntilSettled(app.shell()));
    }
}
