// window_manager_test.cpp: requests to the window manager have their effect, whichever it is.

#include "gui_test.h"

#include <X11/Xutil.h>

#include "probe_window.h"

using namespace kite::testing;
using ::testing::Contains;

namespace {

bool isManaged()
{
    return wm::kind() != wm::Kind::NoManager;
}

}  // namespace

GUI_TEST(WindowManager, IsTheOneThatWasAskedFor)
{
    const std::string name = environment("KITE_TEST_WM");
    const wm::Kind expected = name == "mwm"       ? wm::Kind::Mwm
                              : name == "openbox" ? wm::Kind::Openbox
                                                  : wm::Kind::NoManager;
    EXPECT_EQ(wm::kind(), expected);
}

GUI_TEST(WindowManager, CloseReachesTheClientOnce)
{
    ProbeWindow window;
    wm::close(window.box);
    EXPECT_TRUE(pumpUntil([&] { return window.closeRequests > 0; }));
    settle();
    EXPECT_EQ(window.closeRequests, 1);
}

GUI_TEST(WindowManager, CloseByMouseReachesTheClientOnce)
{
    ProbeWindow window;
    wm::closeByDecoration(window.box);
    EXPECT_TRUE(pumpUntil([&] { return window.closeRequests > 0; }));
    settle();
    EXPECT_EQ(window.closeRequests, 1);
}

GUI_TEST(WindowManager, BareCloseRequestReachesTheClient)
{
    ProbeWindow window;
    wm::requestClose(window.box);
    EXPECT_TRUE(pumpUntil([&] { return window.closeRequests == 1; }));
}

GUI_TEST(WindowManager, CloseOfTheFrameRaisesItsEvent)
{
    wm::close(app.shell());
    EXPECT_TRUE(app.waitForEvent(toWindow(GUI_EVENT_COMMAND, GUI_COMMAND_CLOSE)));
}

GUI_TEST(WindowManager, FrameLiesAroundTheClient)
{
    const Rect frame = wm::frameRect(app.shell());
    const Rect client = wm::clientRect(app.shell());
    if (!isManaged()) {
        EXPECT_EQ(frame, client);
        return;
    }
    EXPECT_LT(frame.y, client.y);
    EXPECT_GT(frame.width, client.width);
    EXPECT_NE(wm::frameOf(app.shell()), windowOf(app.shell()));
}

GUI_TEST(WindowManager, ReadsWhatTheClientSays)
{
    guiSetFrameTitle("A title");
    EXPECT_TRUE(pumpUntil([this] { return wm::nameOf(app.shell()) == "A title"; }));
    EXPECT_EQ(wm::iconNameOf(app.shell()), "Kite");
    EXPECT_THAT(wm::protocolsOf(app.shell()), Contains("WM_DELETE_WINDOW"));
    EXPECT_EQ(wm::normalHintsOf(app.shell()).min_width, 300);
    ProbeWindow window;
    EXPECT_EQ(wm::transientFor(window.box), windowOf(app.shell()));
}
