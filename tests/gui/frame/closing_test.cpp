// The end of the frame.

#include "frame_checks.h"
#include "gui_test.h"

using namespace kite::testing;
using ::testing::ElementsAre;

GUI_STARTUP_TEST(Closing, EndsTheMainLoop)
{
    app.init();
    const Window window = windowOf(app.shell());
    EXPECT_EQ(app.run([] { guiClose(0); }), 0);
    EXPECT_EQ(guiGetTopWnd(), nullptr);
    EXPECT_EQ(wm::stateOf(window), wm::State::Withdrawn);
}

GUI_STARTUP_TEST(Closing, RaisesNoEvent)
{
    app.run([&] {
        recorder.clear();
        guiClose(0);
    });
    EXPECT_TRUE(recorder.events().empty());
}

GUI_STARTUP_TEST(Closing, SavesThenStopsTheLog)
{
    host.profile().setInt("logfm", 1);
    app.run([] { guiClose(0); });
    EXPECT_EQ(host.profile().writes().size(), 4U);
    EXPECT_EQ(withoutTimes(contentsOf("output.log")), ">>>LogStarted: T\n\n>>>LogStopped: T\n");
}

// Not to be saved is no reason to leave the log open.
GUI_STARTUP_TEST(Closing, OfAnIconStopsTheLog)
{
    host.profile().setInt("logfm", 1);
    app.run([&] {
        guiMoveWin(0, 0, 0, 0);
        ASSERT_TRUE(pumpUntil([&] { return wm::stateOf(app.shell()) == wm::State::Iconic; }));
        guiClose(0);
    });
    EXPECT_TRUE(host.profile().writes().empty());
    EXPECT_EQ(withoutTimes(contentsOf("output.log")), ">>>LogStarted: T\n\n>>>LogStopped: T\n");
}

GUI_STARTUP_TEST(Closing, WithinAHandlerIsSafe)
{
    recorder.onEvent(GUI_EVENT_COMMAND, GUI_COMMAND_CLOSE, [] { guiClose(0); });
    app.run([&] {
        wm::close(app.shell());
        EXPECT_TRUE(pumpUntil([] { return guiGetTopWnd() == nullptr; }));
    });
    EXPECT_THAT(recorder.events(), ElementsAre(toWindow(GUI_EVENT_INIT),
                                               toWindow(GUI_EVENT_COMMAND, GUI_COMMAND_CLOSE)));
}

GUI_STARTUP_TEST(Closing, WithinTheHostCallbackIsSafe)
{
    app.windowHandler = nullptr;
    recorder.onEvent(GUI_EVENT_COMMAND, GUI_COMMAND_CLOSE, [] { guiClose(0); });
    app.run([&] {
        wm::close(app.shell());
        EXPECT_TRUE(pumpUntil([] { return guiGetTopWnd() == nullptr; }));
    });
    EXPECT_THAT(recorder.events(),
                ElementsAre(toHost(GUI_EVENT_INIT), toHost(GUI_EVENT_COMMAND, GUI_COMMAND_CLOSE)));
}

GUI_STARTUP_TEST(Closing, WithinTheFirstEventEndsTheStart)
{
    app.init();
    recorder.onEvent(GUI_EVENT_INIT, [] { guiClose(0); });
    EXPECT_EQ(guiStart(app.windowHandler), 0);
    EXPECT_EQ(guiGetTopWnd(), nullptr);
}

// A host without any handler: the user can still leave.
GUI_STARTUP_TEST(Closing, WithoutAnyHandlerFollowsTheRequest)
{
    app.hostCallback = nullptr;
    app.windowHandler = nullptr;
    app.run([&] {
        wm::close(app.shell());
        EXPECT_TRUE(pumpUntil([] { return guiGetTopWnd() == nullptr; }));
    });
    EXPECT_EQ(host.profile().writes().size(), 4U);
}

GUI_STARTUP_TEST(Closing, BeforeTheStartIsSafe)
{
    app.init();
    guiClose(0);
    EXPECT_EQ(guiGetTopWnd(), nullptr);
    EXPECT_EQ(host.profile().writes().size(), 4U);
}

// The host reports that it cannot save, and the user closes the report and the frame.
GUI_STARTUP_TEST(Closing, WithinItsOwnSavingIsSafe)
{
    host.profile().onWrite([&] {
        host.profile().onWrite(nullptr);
        app.whenShown("v_infobox", [](Shown) {
            guiClose(0);
            guiClose(0);
        });
        guiInfoBox("Cannot save");
        EXPECT_EQ(guiGetTopWnd(), nullptr);
    });
    EXPECT_EQ(app.run([] { guiClose(0); }), 0);
}

// Asked whether to save, the host closes the frame.
GUI_STARTUP_TEST(Closing, WithinTheQuestionWhetherToSaveIsSafe)
{
    const auto closeOnce = [&](const std::string& key) {
        if (key != "mwndp") return;
        host.profile().onRead(nullptr);
        guiClose(0);
        EXPECT_EQ(guiGetTopWnd(), nullptr);
    };
    EXPECT_EQ(app.run([&] {
        host.profile().onRead(closeOnce);
        guiClose(0);
    }),
              0);
}
