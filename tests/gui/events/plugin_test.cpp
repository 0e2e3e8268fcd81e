// guiRunPlugin: a plug-in that runs at once.

#include <climits>

#include "events_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

GuiPlugin pluginRaising(int command)
{
    return plugin([=](GuiHandler dispatch) {
        dispatch(GUI_EVENT_COMMAND, command, 2, 3);
        return 0;
    });
}

}  // namespace

GUI_TEST(RunPlugin, ReturnsItsResult)
{
    for (const int result : {0, 1, -1, 42, INT_MIN, INT_MAX})
        EXPECT_EQ(guiRunPlugin(plugin([=](GuiHandler) { return result; })), result);
}

GUI_TEST(RunPlugin, NullFails)
{
    EXPECT_EQ(guiRunPlugin(nullptr), GUI_FAILED);
}

GUI_TEST(RunPlugin, GetsTheDispatcher)
{
    recorder.clear();
    guiRunPlugin(pluginRaising(1));
    EXPECT_THAT(recorder.events(), ElementsAre(toWindow(GUI_EVENT_COMMAND, 1, 2, 3)));
}

GUI_TEST(RunPlugin, RaisesEventsInTheTopWindowOfTheMoment)
{
    recorder.clear();
    guiRunPlugin(plugin([](GuiHandler dispatch) {
        dispatch(GUI_EVENT_COMMAND, 1, 0, 0);
        guiSetTopWnd(makeWindow(Recorder::dialogHandler()));
        dispatch(GUI_EVENT_COMMAND, 2, 0, 0);
        guiClose(0);
        dispatch(GUI_EVENT_COMMAND, 3, 0, 0);
        return 0;
    }));
    EXPECT_THAT(recorder.events(),
                ElementsAre(toWindow(GUI_EVENT_COMMAND, 1), toDialog(GUI_EVENT_COMMAND, 2),
                            toWindow(GUI_EVENT_COMMAND, 3)));
}

GUI_TEST(RunPlugin, NegativeResultIsForTheCallerAlone)
{
    recorder.clear();
    EXPECT_EQ(guiRunPlugin(plugin([](GuiHandler) { return -5; })), -5);
    raiseEvent(GUI_EVENT_COMMAND, 1);
    EXPECT_THAT(recorder.events(), ElementsAre(toWindow(GUI_EVENT_COMMAND, 1)));
}

GUI_TEST(RunPlugin, RunsInsideAHandler)
{
    recorder.clear();
    recorder.onEvent(GUI_EVENT_COMMAND, -2, [&] {
        guiRunPlugin(pluginRaising(1));
        EXPECT_EQ(recorder.count(GUI_EVENT_COMMAND), 2);
    });
    app.key(XK_F2);
    EXPECT_THAT(recorder.events(),
                ElementsAre(toWindow(GUI_EVENT_COMMAND, -2), toWindow(GUI_EVENT_COMMAND, 1, 2, 3)));
}

GUI_STARTUP_TEST(RunPlugin, InsideTheHostCallbackRaisesNothingThere)
{
    app.windowHandler = nullptr;
    app.run([&] {
        recorder.clear();
        recorder.onEvent(GUI_EVENT_COMMAND, -2, [] { guiRunPlugin(pluginRaising(1)); });
        app.key(XK_F2);
        EXPECT_THAT(recorder.events(), ElementsAre(toHost(GUI_EVENT_COMMAND, -2)));
    });
}

GUI_TEST(RunPlugin, MayOpenBoxes)
{
    app.whenShown("v_askbox", [](Shown box) { box.click("Yes"); });
    EXPECT_EQ(guiRunPlugin(plugin([](GuiHandler) { return guiYesNoBox("From a plug-in"); })),
              GUI_YES);
}

GUI_TEST(RunPlugin, MayRunInsideABox)
{
    recorder.clear();
    app.whenShown("v_infobox", [](Shown box) {
        guiRunPlugin(pluginRaising(1));
        box.key(XK_Return);
    });
    guiInfoBox("Meanwhile");
    EXPECT_THAT(recorder.events(), ElementsAre(toHost(GUI_EVENT_COMMAND, 1, 2, 3)));
}

GUI_TEST(RunPlugin, MayRunAnotherOne)
{
    const GuiPlugin inner = plugin<1>([](GuiHandler) { return 7; });
    EXPECT_EQ(guiRunPlugin(plugin<0>([=](GuiHandler) { return guiRunPlugin(inner) + 1; })), 8);
}

GUI_TEST(RunPlugin, MayCloseTheFrame)
{
    recorder.clear();
    EXPECT_EQ(guiRunPlugin(plugin([](GuiHandler dispatch) {
                  guiClose(0);
                  dispatch(GUI_EVENT_COMMAND, 1, 0, 0);
                  return 3;
              })),
              3);
    EXPECT_EQ(guiGetTopWnd(), nullptr);
    EXPECT_THAT(recorder.events(), ElementsAre(toHost(GUI_EVENT_COMMAND, 1)));
}

GUI_STARTUP_TEST(RunPlugin, BeforeTheStartReachesNobody)
{
    EXPECT_EQ(guiRunPlugin(nullptr), GUI_FAILED);
    EXPECT_EQ(guiRunPlugin(pluginRaising(1)), 0);
    EXPECT_THAT(recorder.events(), IsEmpty());
}
