// Who receives an event.

#include <climits>

#include "events_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

GUI_TEST(Dispatch, HandlerOfTheFrameGetsAllFourIntegers)
{
    recorder.clear();
    raiseEvent(GUI_EVENT_COMMAND, 7, INT_MIN, INT_MAX);
    EXPECT_THAT(recorder.events(), ElementsAre(toWindow(GUI_EVENT_COMMAND, 7, INT_MIN, INT_MAX)));
}

GUI_STARTUP_TEST(Dispatch, HostCallbackGetsWhatTheFrameHasNoHandlerFor)
{
    app.windowHandler = nullptr;
    app.run([&] {
        recorder.clear();
        raiseEvent(GUI_EVENT_COMMAND, 7, INT_MIN, INT_MAX);
        EXPECT_THAT(recorder.events(), ElementsAre(toHost(GUI_EVENT_COMMAND, 7, INT_MIN, INT_MAX)));
    });
}

GUI_TEST(Dispatch, HandlerOfTheTopWindowComesFirst)
{
    recorder.clear();
    guiSetTopWnd(makeWindow(Recorder::dialogHandler()));
    raiseEvent(GUI_EVENT_COMMAND, 1);
    EXPECT_THAT(recorder.events(), ElementsAre(toDialog(GUI_EVENT_COMMAND, 1)));
}

GUI_TEST(Dispatch, TopWindowWithoutHandlerLeavesEventsToTheHostCallback)
{
    recorder.clear();
    guiSetTopWnd(makeWindow(nullptr));
    raiseEvent(GUI_EVENT_COMMAND, 1);
    EXPECT_THAT(recorder.events(), ElementsAre(toHost(GUI_EVENT_COMMAND, 1)));
}

GUI_TEST(Dispatch, BoxLeavesEventsToTheHostCallback)
{
    recorder.clear();
    app.whenShown("v_infobox", [](Shown box) {
        raiseEvent(GUI_EVENT_COMMAND, 1);
        box.key(XK_Return);
    });
    guiInfoBox("A box has no handler");
    raiseEvent(GUI_EVENT_COMMAND, 2);
    EXPECT_THAT(recorder.events(),
                ElementsAre(toHost(GUI_EVENT_COMMAND, 1), toWindow(GUI_EVENT_COMMAND, 2)));
}

GUI_TEST(Dispatch, NoTopWindowLeavesEventsToTheHostCallback)
{
    Widget const mainWindow = guiGetTopWnd();
    recorder.clear();
    guiSetTopWnd(nullptr);
    raiseEvent(GUI_EVENT_COMMAND, 1);
    guiSetTopWnd(mainWindow);
    EXPECT_THAT(recorder.events(), ElementsAre(toHost(GUI_EVENT_COMMAND, 1)));
}

GUI_STARTUP_TEST(Dispatch, WithoutAnyHandlerOnlyACloseRequestHasAnEffect)
{
    app.hostCallback = nullptr;
    app.windowHandler = nullptr;
    app.run([&] {
        raiseEvent(GUI_EVENT_COMMAND, 1);
        raiseEvent(GUI_EVENT_TIMER);
        raiseEvent(GUI_EVENT_INIT);
        EXPECT_NE(guiGetTopWnd(), nullptr);
        raiseEvent(GUI_EVENT_COMMAND, GUI_COMMAND_CLOSE);
        EXPECT_EQ(guiGetTopWnd(), nullptr);
    });
    EXPECT_THAT(recorder.events(), IsEmpty());
}

GUI_TEST(Dispatch, ResultsOfHandlersAreIgnored)
{
    for (const int result : {-999, -1, 0, 1, 999}) {
        SCOPED_TRACE(result);
        recorder.clear();
        recorder.setResult(result);
        raiseEvent(GUI_EVENT_COMMAND, GUI_COMMAND_CLOSE);
        EXPECT_THAT(recorder.events(), ElementsAre(toWindow(GUI_EVENT_COMMAND, GUI_COMMAND_CLOSE)));
        EXPECT_NE(guiGetTopWnd(), nullptr);
    }
}

GUI_STARTUP_TEST(Dispatch, ResultsOfTheHostCallbackAreIgnored)
{
    app.windowHandler = nullptr;
    app.run([&] {
        recorder.clear();
        recorder.setResult(-1);
        raiseEvent(GUI_EVENT_COMMAND, 5);
        EXPECT_THAT(recorder.events(), ElementsAre(toHost(GUI_EVENT_COMMAND, 5)));
    });
}

GUI_STARTUP_TEST(Dispatch, HostCallbackIsNotEnteredAgain)
{
    app.windowHandler = nullptr;
    app.run([&] {
        recorder.clear();
        recorder.onEvent(GUI_EVENT_COMMAND, 1, [] { raiseEvent(GUI_EVENT_COMMAND, 2); });
        raiseEvent(GUI_EVENT_COMMAND, 1);
        raiseEvent(GUI_EVENT_COMMAND, 3);
        EXPECT_THAT(recorder.events(),
                    ElementsAre(toHost(GUI_EVENT_COMMAND, 1), toHost(GUI_EVENT_COMMAND, 3)));
    });
}

GUI_STARTUP_TEST(Dispatch, EventsAreDroppedWhileTheHostCallbackWaitsInABox)
{
    app.windowHandler = nullptr;
    app.run([&] {
        recorder.clear();
        recorder.onEvent(GUI_EVENT_COMMAND, -2, [] { guiInfoBox("The host callback waits"); });
        app.whenShown("v_infobox", [&](Shown box) {
            raiseEvent(GUI_EVENT_COMMAND, 3);
            box.key(XK_Return);
        });
        app.key(XK_F2);
        EXPECT_THAT(recorder.events(), ElementsAre(toHost(GUI_EVENT_COMMAND, -2)));
        EXPECT_TRUE(wm::waitForFocus(app.shell()));
        app.key(XK_F3);
        EXPECT_EQ(recorder.events().back(), toHost(GUI_EVENT_COMMAND, -3));
    });
}

GUI_TEST(Dispatch, WindowHandlerIsEnteredAgain)
{
    recorder.clear();
    recorder.onEvent(GUI_EVENT_COMMAND, 1, [] { raiseEvent(GUI_EVENT_COMMAND, 2); });
    raiseEvent(GUI_EVENT_COMMAND, 1);
    EXPECT_THAT(recorder.events(),
                ElementsAre(toWindow(GUI_EVENT_COMMAND, 1), toWindow(GUI_EVENT_COMMAND, 2)));
}

GUI_TEST(Dispatch, HostCallbackIsCalledWhileAWindowHandlerWaitsInABox)
{
    recorder.clear();
    recorder.onEvent(GUI_EVENT_COMMAND, -2, [] { guiInfoBox("The window handler waits"); });
    app.whenShown("v_infobox", [](Shown box) {
        raiseEvent(GUI_EVENT_COMMAND, 3);
        box.key(XK_Return);
    });
    app.key(XK_F2);
    EXPECT_THAT(recorder.events(),
                ElementsAre(toWindow(GUI_EVENT_COMMAND, -2), toHost(GUI_EVENT_COMMAND, 3)));
}

GUI_STARTUP_TEST(Dispatch, WindowHandlersAreCalledWhileTheHostCallbackRuns)
{
    app.windowHandler = nullptr;
    app.run([&] {
        recorder.clear();
        recorder.onEvent(GUI_EVENT_COMMAND, 1, [] {
            guiSetTopWnd(makeWindow(Recorder::dialogHandler()));
            raiseEvent(GUI_EVENT_COMMAND, 2);
        });
        raiseEvent(GUI_EVENT_COMMAND, 1);
        EXPECT_THAT(recorder.events(),
                    ElementsAre(toHost(GUI_EVENT_COMMAND, 1), toDialog(GUI_EVENT_COMMAND, 2)));
    });
}

GUI_TEST(Dispatch, NothingIsDeliveredWhileTheFrameCloses)
{
    int raised = 0;
    onCallback(guiGetTopWnd(), XmNdestroyCallback, [&] {
        ++raised;
        raiseEvent(GUI_EVENT_COMMAND, 1);
    });
    recorder.clear();
    guiClose(0);
    EXPECT_EQ(raised, 1);
    EXPECT_THAT(recorder.events(), IsEmpty());
}

GUI_TEST(Dispatch, NothingIsDeliveredWhileABoxIsClosed)
{
    int raised = 0;
    app.whenShown("v_infobox", [&](Shown box) {
        onCallback(box.widget(), XmNunmapCallback, [&] {
            ++raised;
            raiseEvent(GUI_EVENT_COMMAND, 1);
        });
        recorder.clear();
        guiClose(0);
        EXPECT_THAT(recorder.events(), IsEmpty());
    });
    guiInfoBox("Closed by the host");
    EXPECT_EQ(raised, 1);
    raiseEvent(GUI_EVENT_COMMAND, 2);
    EXPECT_THAT(recorder.events(), ElementsAre(toWindow(GUI_EVENT_COMMAND, 2)));
}

GUI_STARTUP_TEST(Dispatch, EventsBeforeTheStartAreLost)
{
    raiseEvent(GUI_EVENT_COMMAND, 1);
    raiseEvent(GUI_EVENT_COMMAND, GUI_COMMAND_CLOSE);
    EXPECT_THAT(recorder.events(), IsEmpty());
    app.run([&] { EXPECT_THAT(recorder.events(), ElementsAre(toWindow(GUI_EVENT_INIT))); });
}

GUI_TEST(Dispatch, HostCallbackStillGetsEventsAfterTheFrameIsClosed)
{
    guiClose(0);
    recorder.clear();
    raiseEvent(GUI_EVENT_COMMAND, 1);
    EXPECT_THAT(recorder.events(), ElementsAre(toHost(GUI_EVENT_COMMAND, 1)));
}
