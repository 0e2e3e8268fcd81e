// guiStart: the loop that runs the frame until it is closed.

#include <Xm/Xm.h>
#include <fcntl.h>

#include "connection.h"
#include "events_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

GUI_STARTUP_TEST(MainLoop, ReturnsZeroWhenTheFrameIsClosed)
{
    EXPECT_EQ(app.run([] { guiClose(0); }), 0);
}

GUI_STARTUP_TEST(MainLoop, ReturnCodeOfCloseIsNoResult)
{
    EXPECT_EQ(app.run([] { guiClose(7); }), 0);
}

GUI_STARTUP_TEST(MainLoop, WindowIsGoneAndTheDisplayClosedAtTheEnd)
{
    Window window = 0;
    int socket = -1;
    app.run([&] {
        window = windowOf(app.shell());
        socket = ConnectionNumber(toolkit::display());
        EXPECT_TRUE(isViewable(window));
        EXPECT_NE(fcntl(socket, F_GETFD), -1);
    });
    EXPECT_EQ(fcntl(socket, F_GETFD), -1);
    EXPECT_TRUE(pumpUntil([&] { return !isViewable(window); }));
}

GUI_TEST(MainLoop, HandlerIsTheOneOfTheMainWindow)
{
    const auto handler = resource<XtPointer>(app.find("v_mainwnd"), XmNuserData);
    EXPECT_EQ(reinterpret_cast<GuiHandler>(handler), Recorder::windowHandler());
}

GUI_TEST(MainLoop, SecondCallReturnsAtOnceAndChangesNothing)
{
    recorder.clear();
    EXPECT_EQ(guiStart(Recorder::dialogHandler()), GUI_FAILED);
    EXPECT_THAT(recorder.events(), IsEmpty());
    app.key(XK_F2);
    EXPECT_THAT(recorder.events(), ElementsAre(toWindow(GUI_EVENT_COMMAND, -2)));
}

GUI_STARTUP_TEST(MainLoop, NeedsAFrame)
{
    EXPECT_EQ(guiStart(Recorder::windowHandler()), GUI_FAILED);
    EXPECT_THAT(recorder.events(), IsEmpty());
}

GUI_STARTUP_TEST(MainLoop, NeedsAFrameThatIsOpen)
{
    app.run([] {});
    recorder.clear();
    EXPECT_EQ(guiStart(Recorder::windowHandler()), GUI_FAILED);
    EXPECT_THAT(recorder.events(), IsEmpty());
}

// Its end would close the display that the box waits on.
GUI_STARTUP_TEST(MainLoop, DoesNotBeginInsideABox)
{
    app.init();
    app.whenShown("v_infobox", [](Shown) {
        guiClose(0);  // the box
        guiClose(0);  // the frame
        EXPECT_EQ(guiStart(Recorder::windowHandler()), GUI_FAILED);
    });
    guiInfoBox("message");
    EXPECT_EQ(guiStart(Recorder::windowHandler()), 0);
    EXPECT_THAT(recorder.events(), IsEmpty());
}

GUI_TEST(MainLoop, RunsTheHostsOwnTimers)
{
    bool hasFired = false;
    XtAppAddTimeOut(
        toolkit::context(), 1,
        [](XtPointer fired, XtIntervalId*) { *static_cast<bool*>(fired) = true; }, &hasFired);
    EXPECT_TRUE(pumpUntil([&] { return hasFired; }));
}
