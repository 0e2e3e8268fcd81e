// A host that runs an event loop of its own, without guiStart: the first event shows the frame.

#include "events_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

GUI_STARTUP_TEST(FirstEvent, NothingComesBeforeIt)
{
    app.init();
    settle();
    EXPECT_THAT(recorder.events(), IsEmpty());
    EXPECT_FALSE(XtIsManaged(app.find("v_menubar")));
}

GUI_STARTUP_TEST(FirstEvent, IsDeliveredAndThenTheFrameIsShown)
{
    app.init();
    app.key(XK_F2);
    EXPECT_THAT(recorder.events(),
                ElementsAre(toHost(GUI_EVENT_COMMAND, -2), toHost(GUI_EVENT_INIT)));
    EXPECT_TRUE(XtIsManaged(app.find("v_menubar")));
    EXPECT_EQ(findWidget("v_toolbar"), nullptr);
}

GUI_STARTUP_TEST(FirstEvent, ComesOnce)
{
    app.init();
    app.key(XK_F2);
    app.key(XK_F3);
    EXPECT_THAT(recorder.events(),
                ElementsAre(toHost(GUI_EVENT_COMMAND, -2), toHost(GUI_EVENT_INIT),
                            toHost(GUI_EVENT_COMMAND, -3)));
}

GUI_STARTUP_TEST(FirstEvent, ShowsTheFrameOfAHostWithoutHandlers)
{
    app.hostCallback = nullptr;
    app.init();
    app.key(XK_F2);
    EXPECT_TRUE(XtIsManaged(app.find("v_menubar")));
}

GUI_STARTUP_TEST(FirstEvent, InitComesAfterItsHandlerHasReturned)
{
    app.init();
    recorder.onEvent(GUI_EVENT_COMMAND, 1, [&] {
        raiseEvent(GUI_EVENT_COMMAND, 2);
        EXPECT_EQ(recorder.count(GUI_EVENT_INIT), 0);
    });
    raiseEvent(GUI_EVENT_COMMAND, 1);
    EXPECT_THAT(recorder.events(),
                ElementsAre(toHost(GUI_EVENT_COMMAND, 1), toHost(GUI_EVENT_INIT)));
}

GUI_STARTUP_TEST(FirstEvent, AfterARestartShowsTheFrameAgain)
{
    app.init();
    app.key(XK_F2);
    guiRestart();
    recorder.clear();
    app.key(XK_F3);
    app.key(XK_F4);
    EXPECT_THAT(recorder.events(),
                ElementsAre(toHost(GUI_EVENT_COMMAND, -3), toHost(GUI_EVENT_INIT),
                            toHost(GUI_EVENT_COMMAND, -4)));
}

GUI_TEST(FirstEvent, AfterARestartInTheMainLoopShowsTheFrameAgain)
{
    guiRestart();
    recorder.clear();
    app.key(XK_F3);
    EXPECT_THAT(recorder.events(),
                ElementsAre(toWindow(GUI_EVENT_COMMAND, -3), toWindow(GUI_EVENT_INIT)));
}

GUI_STARTUP_TEST(FirstEvent, GuiStartCountsAsStarted)
{
    app.run([&] {
        app.key(XK_F2);
        EXPECT_THAT(recorder.events(),
                    ElementsAre(toWindow(GUI_EVENT_INIT), toWindow(GUI_EVENT_COMMAND, -2)));
    });
}
