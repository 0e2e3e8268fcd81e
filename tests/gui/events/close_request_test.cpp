// The window manager asks to close the frame. Run under several window managers.

#include <Xm/Text.h>

#include "bell_watch.h"
#include "events_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

const Event closeRequest = toWindow(GUI_EVENT_COMMAND, GUI_COMMAND_CLOSE, 0, 0);

}  // namespace

GUI_TEST(CloseRequest, GoesToTheWindowHandler)
{
    recorder.clear();
    wm::close(app.shell());
    EXPECT_TRUE(app.waitForEvent(closeRequest));
    EXPECT_THAT(recorder.events(), ElementsAre(closeRequest));
}

GUI_TEST(CloseRequest, GoesToTheWindowHandlerFromTheDecoration)
{
    recorder.clear();
    wm::closeByDecoration(app.shell());
    EXPECT_TRUE(app.waitForEvent(closeRequest));
    EXPECT_THAT(recorder.events(), ElementsAre(closeRequest));
}

GUI_TEST(CloseRequest, LeavesTheFrameToItsHandler)
{
    wm::close(app.shell());
    EXPECT_TRUE(app.waitForEvent(closeRequest));
    settle();
    ASSERT_NE(guiGetTopWnd(), nullptr);
    EXPECT_TRUE(isShown(app.find("v_text")));
    app.type("alive");
    EXPECT_EQ(textOf(app.find("v_text")), "alive");
}

GUI_STARTUP_TEST(CloseRequest, GoesToTheHostCallbackWithoutWindowHandler)
{
    app.windowHandler = nullptr;
    app.run([&] {
        const Event request = toHost(GUI_EVENT_COMMAND, GUI_COMMAND_CLOSE, 0, 0);
        recorder.clear();
        wm::close(app.shell());
        EXPECT_TRUE(app.waitForEvent(request));
        EXPECT_THAT(recorder.events(), ElementsAre(request));
        EXPECT_NE(guiGetTopWnd(), nullptr);
    });
}

GUI_STARTUP_TEST(CloseRequest, ClosesAFrameWithoutAnyHandler)
{
    app.hostCallback = nullptr;
    app.windowHandler = nullptr;
    bool isClosed = false;
    EXPECT_EQ(app.run([&] {
        wm::close(app.shell());
        isClosed = pumpUntil([] { return guiGetTopWnd() == nullptr; });
    }),
              0);
    EXPECT_TRUE(isClosed);
}

GUI_STARTUP_TEST(CloseRequest, ResetsAFrameWithoutAnyHandlerBeforeItCloses)
{
    app.hostCallback = nullptr;
    app.windowHandler = nullptr;
    app.run([&] {
        Widget const text = app.find("v_text");
        app.type("written");
        std::string last = "not read";
        onCallback(text, XmNdestroyCallback, [&] { last = textOf(text); });
        wm::close(app.shell());
        EXPECT_TRUE(pumpUntil([] { return guiGetTopWnd() == nullptr; }));
        EXPECT_EQ(last, "");
    });
}

GUI_STARTUP_TEST(CloseRequest, HandlerMayCloseTheFrame)
{
    recorder.onEvent(GUI_EVENT_COMMAND, GUI_COMMAND_CLOSE, [] { guiClose(0); });
    EXPECT_EQ(app.run([&] {
        wm::close(app.shell());
        EXPECT_TRUE(pumpUntil([] { return guiGetTopWnd() == nullptr; }));
    }),
              0);
    EXPECT_EQ(recorder.count(closeRequest), 1);
}

GUI_STARTUP_TEST(CloseRequest, HandlerMayAskFirst)
{
    recorder.onEvent(GUI_EVENT_COMMAND, GUI_COMMAND_CLOSE, [] {
        if (guiYesNoBox("Leave?")) guiClose(0);
    });
    app.run([&] {
        app.whenShown("v_askbox", [](Shown box) { box.click("No"); });
        wm::close(app.shell());
        EXPECT_TRUE(pumpUntil([&] { return guiGetTopWnd() == app.find("v_mainwnd"); }));
        app.whenShown("v_askbox", [](Shown box) { box.click("Yes"); });
        wm::close(app.shell());
        EXPECT_TRUE(pumpUntil([] { return guiGetTopWnd() == nullptr; }));
    });
    EXPECT_EQ(recorder.count(closeRequest), 2);
}

GUI_TEST(CloseRequest, EachOneIsAnEvent)
{
    recorder.clear();
    wm::close(app.shell());
    EXPECT_TRUE(app.waitForEvent(closeRequest));
    wm::close(app.shell());
    EXPECT_TRUE(pumpUntil([&] { return recorder.count(closeRequest) == 2; }));
}

GUI_TEST(CloseRequest, RingsTheBellWhileABoxIsOpen)
{
    BellWatch bell;
    recorder.clear();
    app.whenShown("v_askbox", [&](Shown box) {
        wm::requestClose(app.shell());
        EXPECT_TRUE(bell.waitForRings(1));
        settle();
        EXPECT_THAT(bell.rings(), ElementsAre(50));
        EXPECT_THAT(recorder.events(), IsEmpty());
        EXPECT_TRUE(isShown(box.widget()));
        EXPECT_TRUE(isShown(app.find("v_text")));
        EXPECT_EQ(guiGetTopWnd(), box.widget());
        box.click("Yes");
    });
    EXPECT_EQ(guiYesNoBox("Still here?"), 1);
    EXPECT_NE(guiGetTopWnd(), nullptr);
    EXPECT_THAT(recorder.events(), IsEmpty());
}

GUI_TEST(CloseRequest, RingsTheBellWhileAWindowOfTheHostIsOnTop)
{
    BellWatch bell;
    recorder.clear();
    Widget const window = makeWindow(Recorder::dialogHandler());
    guiSetTopWnd(window);
    wm::requestClose(app.shell());
    EXPECT_TRUE(bell.waitForRings(1));
    EXPECT_THAT(recorder.events(), IsEmpty());
    EXPECT_EQ(guiGetTopWnd(), window);
}

GUI_TEST(CloseRequest, DoesNotRingTheBellOtherwise)
{
    BellWatch bell;
    wm::close(app.shell());
    EXPECT_TRUE(app.waitForEvent(closeRequest));
    settle();
    EXPECT_THAT(bell.rings(), IsEmpty());
}

GUI_TEST(CloseRequest, OfABoxAnswersItAndRaisesNothing)
{
    recorder.clear();
    app.whenShown("v_askbox", [](Shown box) { box.closeByWindowManager(); });
    EXPECT_EQ(guiYesNoCancelBox("Save?"), GUI_CANCEL);
    EXPECT_THAT(recorder.events(), IsEmpty());
    EXPECT_NE(guiGetTopWnd(), nullptr);
}
