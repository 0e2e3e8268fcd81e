// guiStartPlugin: a plug-in that runs when the running handler has returned.

#include "events_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

constexpr int kBegin = 100;  // commands that stand for places in the course of things
constexpr int kInside = 101;
constexpr int kPlugin = 102;

const Event failed = toHost(GUI_EVENT_INIT, -1, 0, 0);

GuiPlugin pluginReturning(int result)
{
    return plugin([=](GuiHandler) { return result; });
}

// It raises an event, so that the recorder has when it ran.
template <int slot = 0>
GuiPlugin markedPlugin(int command = kPlugin)
{
    return plugin<slot>([=](GuiHandler dispatch) {
        dispatch(GUI_EVENT_COMMAND, command, 0, 0);
        return 0;
    });
}

}  // namespace

GUI_TEST(StartPlugin, RunsWhenTheHandlerHasReturned)
{
    recorder.clear();
    recorder.onEvent(GUI_EVENT_COMMAND, -2, [&] {
        guiStartPlugin(markedPlugin());
        EXPECT_EQ(recorder.count(GUI_EVENT_COMMAND), 1);
    });
    app.key(XK_F2);
    EXPECT_THAT(recorder.events(),
                ElementsAre(toWindow(GUI_EVENT_COMMAND, -2), toWindow(GUI_EVENT_COMMAND, kPlugin)));
}

GUI_TEST(StartPlugin, RunsOnce)
{
    recorder.onEvent(GUI_EVENT_COMMAND, -2, [] { guiStartPlugin(markedPlugin()); });
    app.key(XK_F2);
    app.key(XK_F3);
    app.key(XK_F4);
    EXPECT_EQ(recorder.count(toWindow(GUI_EVENT_COMMAND, kPlugin)), 1);
}

GUI_TEST(StartPlugin, NeverRunsInsideTheHandlerThatAskedForIt)
{
    recorder.clear();
    recorder.onEvent(GUI_EVENT_COMMAND, kBegin, [&] {
        guiStartPlugin(markedPlugin());
        raiseEvent(GUI_EVENT_COMMAND, kInside);
    });
    // raiseEvent itself is a plug-in, which would withdraw the one that waits: a key is none.
    recorder.onEvent(GUI_EVENT_COMMAND, -2, [&] {
        guiStartPlugin(markedPlugin());
        app.key(XK_F3);
        EXPECT_EQ(recorder.count(toWindow(GUI_EVENT_COMMAND, kPlugin)), 0);
    });
    app.key(XK_F2);
    EXPECT_THAT(recorder.events(),
                ElementsAre(toWindow(GUI_EVENT_COMMAND, -2), toWindow(GUI_EVENT_COMMAND, -3),
                            toWindow(GUI_EVENT_COMMAND, kPlugin)));
}

GUI_TEST(StartPlugin, WaitsForAHandlerThatWaitsInABox)
{
    recorder.clear();
    recorder.onEvent(GUI_EVENT_COMMAND, -2, [] {
        guiStartPlugin(markedPlugin());
        guiTimer(100);
        guiInfoBox("Not yet");
        guiTimer(0);
    });
    app.whenShown("v_infobox", [&](Shown box) {
        EXPECT_TRUE(app.waitForEvent(toHost(GUI_EVENT_TIMER)));
        settle();
        EXPECT_EQ(recorder.count(toHost(GUI_EVENT_COMMAND, kPlugin)), 0);
        box.key(XK_Return);
    });
    app.key(XK_F2);
    EXPECT_EQ(recorder.events().back(), toWindow(GUI_EVENT_COMMAND, kPlugin));
}

GUI_TEST(StartPlugin, RunsInsideTheBoxWhenAHandlerThereAsksForIt)
{
    recorder.onEvent(GUI_EVENT_TIMER, [] {
        guiTimer(0);
        guiStartPlugin(markedPlugin());
    });
    recorder.onEvent(GUI_EVENT_COMMAND, -2, [] {
        guiTimer(100);
        guiInfoBox("The timer runs");
    });
    app.whenShown("v_infobox", [&](Shown box) {
        EXPECT_TRUE(app.waitForEvent(toHost(GUI_EVENT_COMMAND, kPlugin)));
        box.key(XK_Return);
    });
    app.key(XK_F2);
    EXPECT_EQ(recorder.count(GUI_EVENT_COMMAND), 2);
}

GUI_TEST(StartPlugin, LatestRequestCounts)
{
    recorder.onEvent(GUI_EVENT_COMMAND, -2, [] {
        guiStartPlugin(markedPlugin<0>(1));
        guiStartPlugin(markedPlugin<1>(2));
    });
    app.key(XK_F2);
    EXPECT_EQ(recorder.count(toWindow(GUI_EVENT_COMMAND, 1)), 0);
    EXPECT_EQ(recorder.count(toWindow(GUI_EVENT_COMMAND, 2)), 1);
}

GUI_TEST(StartPlugin, NullWithdrawsTheRequest)
{
    recorder.clear();
    recorder.onEvent(GUI_EVENT_COMMAND, -2, [] {
        guiStartPlugin(markedPlugin());
        guiStartPlugin(nullptr);
    });
    app.key(XK_F2);
    app.key(XK_F3);
    EXPECT_THAT(recorder.events(),
                ElementsAre(toWindow(GUI_EVENT_COMMAND, -2), toWindow(GUI_EVENT_COMMAND, -3)));
}

GUI_TEST(StartPlugin, RunPluginWithdrawsTheRequest)
{
    recorder.clear();
    recorder.onEvent(GUI_EVENT_COMMAND, -2, [] {
        guiStartPlugin(markedPlugin<0>());
        guiRunPlugin(plugin<1>([](GuiHandler) { return 0; }));
    });
    app.key(XK_F2);
    app.key(XK_F3);
    EXPECT_THAT(recorder.events(),
                ElementsAre(toWindow(GUI_EVENT_COMMAND, -2), toWindow(GUI_EVENT_COMMAND, -3)));
}

GUI_STARTUP_TEST(StartPlugin, AskedForOutsideHandlersRunsAfterTheNextEvent)
{
    guiStartPlugin(markedPlugin());
    app.run([&] {
        EXPECT_THAT(recorder.events(),
                    ElementsAre(toWindow(GUI_EVENT_INIT), toWindow(GUI_EVENT_COMMAND, kPlugin)));
    });
}

GUI_TEST(StartPlugin, AskedForInAPluginRunsAfterTheNextEvent)
{
    recorder.onEvent(GUI_EVENT_COMMAND, -2, [] {
        guiStartPlugin(plugin<0>([](GuiHandler) {
            guiStartPlugin(markedPlugin<1>());
            return 0;
        }));
    });
    app.key(XK_F2);
    recorder.clear();
    app.key(XK_F3);
    EXPECT_THAT(recorder.events(),
                ElementsAre(toWindow(GUI_EVENT_COMMAND, -3), toWindow(GUI_EVENT_COMMAND, kPlugin)));
}

GUI_TEST(StartPlugin, NegativeResultIsReportedToTheHostCallback)
{
    for (const int result : {-1, -999}) {
        SCOPED_TRACE(result);
        recorder.clear();
        recorder.onEvent(GUI_EVENT_COMMAND, -2, [=] { guiStartPlugin(pluginReturning(result)); });
        app.key(XK_F2);
        EXPECT_THAT(recorder.events(), ElementsAre(toWindow(GUI_EVENT_COMMAND, -2), failed));
    }
}

GUI_TEST(StartPlugin, OtherResultsAreNotReported)
{
    for (const int result : {0, 1, 999}) {
        SCOPED_TRACE(result);
        recorder.clear();
        recorder.onEvent(GUI_EVENT_COMMAND, -2, [=] { guiStartPlugin(pluginReturning(result)); });
        app.key(XK_F2);
        EXPECT_THAT(recorder.events(), ElementsAre(toWindow(GUI_EVENT_COMMAND, -2)));
    }
}

GUI_STARTUP_TEST(StartPlugin, NegativeResultIsReportedToTheHostCallbackThatAskedForIt)
{
    app.windowHandler = nullptr;
    app.run([&] {
        recorder.clear();
        recorder.onEvent(GUI_EVENT_COMMAND, -2, [] { guiStartPlugin(pluginReturning(-1)); });
        app.key(XK_F2);
        EXPECT_THAT(recorder.events(), ElementsAre(toHost(GUI_EVENT_COMMAND, -2), failed));
    });
}

GUI_STARTUP_TEST(StartPlugin, NegativeResultIsLostWithoutHostCallback)
{
    app.hostCallback = nullptr;
    app.run([&] {
        recorder.clear();
        recorder.onEvent(GUI_EVENT_COMMAND, -2, [] { guiStartPlugin(pluginReturning(-1)); });
        app.key(XK_F2);
        EXPECT_THAT(recorder.events(), ElementsAre(toWindow(GUI_EVENT_COMMAND, -2)));
        EXPECT_NE(guiGetTopWnd(), nullptr);
    });
}

GUI_TEST(StartPlugin, AskedForInTheReportRunsAfterIt)
{
    recorder.onEvent(GUI_EVENT_COMMAND, -2, [] { guiStartPlugin(pluginReturning(-1)); });
    recorder.onEvent(GUI_EVENT_INIT, -1, [&] {
        guiStartPlugin(markedPlugin<1>());
        EXPECT_EQ(recorder.count(toWindow(GUI_EVENT_COMMAND, kPlugin)), 0);
    });
    recorder.clear();
    app.key(XK_F2);
    EXPECT_THAT(recorder.events(), ElementsAre(toWindow(GUI_EVENT_COMMAND, -2), failed,
                                               toWindow(GUI_EVENT_COMMAND, kPlugin)));
}

// The host callback has returned when the plug-in runs: its events are not dropped.
GUI_STARTUP_TEST(StartPlugin, ReachesTheHostCallbackThatAskedForIt)
{
    app.windowHandler = nullptr;
    app.run([&] {
        recorder.clear();
        recorder.onEvent(GUI_EVENT_COMMAND, -2, [] { guiStartPlugin(markedPlugin()); });
        app.key(XK_F2);
        EXPECT_THAT(recorder.events(),
                    ElementsAre(toHost(GUI_EVENT_COMMAND, -2), toHost(GUI_EVENT_COMMAND, kPlugin)));
    });
}

GUI_TEST(StartPlugin, RaisesEventsInTheTopWindowOfTheMoment)
{
    recorder.clear();
    recorder.onEvent(GUI_EVENT_COMMAND, -2, [] {
        guiStartPlugin(markedPlugin());
        guiSetTopWnd(makeWindow(Recorder::dialogHandler()));
    });
    app.key(XK_F2);
    EXPECT_THAT(recorder.events(),
                ElementsAre(toWindow(GUI_EVENT_COMMAND, -2), toDialog(GUI_EVENT_COMMAND, kPlugin)));
}

GUI_TEST(StartPlugin, MayOpenABox)
{
    int answer = -2;
    recorder.onEvent(GUI_EVENT_COMMAND, -2, [&] {
        guiStartPlugin(plugin([&](GuiHandler) { return answer = guiYesNoBox("From a plug-in"); }));
    });
    app.whenShown("v_askbox", [](Shown box) { box.click("Yes"); });
    app.key(XK_F2);
    EXPECT_EQ(answer, GUI_YES);
}

GUI_TEST(StartPlugin, MayCloseTheFrame)
{
    recorder.clear();
    recorder.onEvent(GUI_EVENT_COMMAND, -2, [] {
        guiStartPlugin(plugin([](GuiHandler) {
            guiClose(0);
            return -1;
        }));
    });
    app.key(XK_F2);
    EXPECT_EQ(guiGetTopWnd(), nullptr);
    EXPECT_THAT(recorder.events(), ElementsAre(toWindow(GUI_EVENT_COMMAND, -2), failed));
}

GUI_STARTUP_TEST(StartPlugin, WaitsForTheFirstEventOfAHostWithoutMainLoop)
{
    app.init();
    guiStartPlugin(markedPlugin());
    settle();
    EXPECT_THAT(recorder.events(), IsEmpty());
    app.key(XK_F2);
    EXPECT_EQ(recorder.count(toHost(GUI_EVENT_COMMAND, kPlugin)), 1);
}
