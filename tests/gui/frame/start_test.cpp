// guiInit: the shell and what it tells the window manager; and the beginning of guiStart.

#include <X11/Shell.h>
#include <Xm/Protocols.h>

#include "frame_checks.h"
#include "gui_test.h"

using namespace kite::testing;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

Rect sizeOfPixmap(Display* display, Pixmap pixmap, unsigned* depth)
{
    Window root = 0;
    int x = 0, y = 0;
    unsigned width = 0, height = 0, border = 0;
    XGetGeometry(display, pixmap, &root, &x, &y, &width, &height, &border, depth);
    return {0, 0, static_cast<int>(width), static_cast<int>(height)};
}

}  // namespace

GUI_STARTUP_TEST(Start, FrameIsOnTheScreenAfterInit)
{
    app.init();
    EXPECT_TRUE(isShown(findWidget("v_mainwnd")));
    EXPECT_TRUE(isShown(findWidget("v_text")));
    EXPECT_TRUE(isShown(findWidget("v_sline")));
    EXPECT_TRUE(isShown(findWidget("v_gauge")));
}

GUI_STARTUP_TEST(Start, MenuBarAndToolbarWaitForTheFirstEvent)
{
    app.init();
    ASSERT_TRUE(findWidget("v_menubar"));
    ASSERT_TRUE(findWidget("v_toolbar"));
    EXPECT_FALSE(XtIsManaged(findWidget("v_menubar")));
    EXPECT_FALSE(XtIsManaged(findWidget("v_toolbar")));
}

GUI_STARTUP_TEST(Start, InitCallsNoHandler)
{
    app.init();
    settle();
    EXPECT_THAT(recorder.events(), IsEmpty());
}

GUI_TEST(Start, StartSendsOneInitEvent)
{
    EXPECT_THAT(recorder.events(), ElementsAre(toWindow(GUI_EVENT_INIT)));
}

GUI_STARTUP_TEST(Start, InitEventGoesToTheHostCallbackWithoutAWindowHandler)
{
    app.windowHandler = nullptr;
    app.run([&] { EXPECT_THAT(recorder.events(), ElementsAre(toHost(GUI_EVENT_INIT))); });
}

GUI_TEST(Start, ShellIsAnApplicationShell)
{
    EXPECT_EQ(XtClass(app.shell()), applicationShellWidgetClass);
    EXPECT_EQ(XtParent(app.shell()), nullptr);
}

GUI_TEST(Start, ShellSaysItsLeastSize)
{
    const XSizeHints hints = wm::normalHintsOf(app.shell());
    EXPECT_TRUE(hints.flags & PMinSize);
    EXPECT_EQ(hints.min_width, 300);
    EXPECT_EQ(hints.min_height, 200);
    EXPECT_EQ(resource<int>(app.shell(), XmNminWidth), 300);
    EXPECT_EQ(resource<int>(app.shell(), XmNminHeight), 200);
}

// A window manager may ignore a position that a program has made up, and takes the user's.
GUI_STARTUP_TEST(Start, SavedPlaceIsThePlaceThatTheUserWants)
{
    savePlace({0, 0, 500, 400});
    app.run([&] { EXPECT_TRUE(wm::normalHintsOf(app.shell()).flags & USPosition); });
}

GUI_TEST(Start, PlaceInTheMiddleIsTheProgramsOwn)
{
    EXPECT_FALSE(wm::normalHintsOf(app.shell()).flags & USPosition);
}

GUI_TEST(Start, CloseRequestsAreLeftToTheLibrary)
{
    EXPECT_THAT(wm::protocolsOf(app.shell()), Contains("WM_DELETE_WINDOW"));
    EXPECT_EQ(resource<unsigned char>(app.shell(), XmNdeleteResponse), XmDO_NOTHING);
    wm::requestClose(app.shell());
    EXPECT_TRUE(app.waitForEvent(toWindow(GUI_EVENT_COMMAND, GUI_COMMAND_CLOSE)));
    EXPECT_TRUE(isShown(app.shell()));
}

GUI_TEST(Start, IconIsTheBuiltInPictureWithoutAFile)
{
    const auto icon = resource<Pixmap>(app.shell(), XmNiconPixmap);
    ASSERT_NE(icon, 0U);
    unsigned depth = 0;
    EXPECT_EQ(sizeOfPixmap(XtDisplay(app.shell()), icon, &depth), (Rect{0, 0, 32, 32}));
    EXPECT_EQ(depth, 1U);
}

GUI_STARTUP_TEST(Start, IconIsTheBuiltInPictureWithADamagedFile)
{
    host.addFile("images/icon.bmp", "BM is no picture");
    app.run([&] {
        unsigned depth = 0;
        const auto icon = resource<Pixmap>(app.shell(), XmNiconPixmap);
        ASSERT_NE(icon, 0U);
        EXPECT_EQ(sizeOfPixmap(XtDisplay(app.shell()), icon, &depth), (Rect{0, 0, 32, 32}));
    });
}

GUI_STARTUP_TEST(Start, MainWindowIsTheTopWindow)
{
    EXPECT_EQ(guiGetTopWnd(), nullptr);
    app.init();
    EXPECT_EQ(guiGetTopWnd(), findWidget("v_mainwnd"));
}

GUI_STARTUP_TEST(Start, SecondInitDoesNothing)
{
    app.init();
    Widget const top = guiGetTopWnd();
    guiSetStatusLine("kept");
    host.profile().clearAccesses();
    guiInit(Recorder::dialogHandler());
    EXPECT_EQ(guiGetTopWnd(), top);
    EXPECT_THAT(host.profile().accesses(), IsEmpty());
    EXPECT_EQ(labelOf(findWidget("v_sline")), "kept");
    app.windowHandler = nullptr;
    app.run([&] { EXPECT_THAT(recorder.events(), ElementsAre(toHost(GUI_EVENT_INIT))); });
}

GUI_TEST(Start, SecondInitWhileTheFrameRunsDoesNothing)
{
    Widget const top = guiGetTopWnd();
    guiInit(Recorder::dialogHandler());
    EXPECT_EQ(guiGetTopWnd(), top);
    EXPECT_EQ(recorder.count(GUI_EVENT_INIT), 1);
}

GUI_TEST(Start, SecondStartReturnsAtOnce)
{
    EXPECT_EQ(guiStart(Recorder::dialogHandler()), -1);
    EXPECT_TRUE(isShown(app.shell()));
    guiRunPlugin([](GuiHandler dispatch) { return dispatch(GUI_EVENT_COMMAND, 5, 0, 0); });
    EXPECT_THAT(recorder.events(),
                ElementsAre(toWindow(GUI_EVENT_INIT), toWindow(GUI_EVENT_COMMAND, 5)));
}

// A whole new life: nothing of the first frame is left in the second.
GUI_STARTUP_TEST(Start, FrameCanBeOpenedAgainAfterItsEnd)
{
    app.run([] {
        guiSetFrameTitle("first");
        guiSetStatusLine("first");
        guiSetProgress(50);
    });
    recorder.clear();
    app.run([&] {
        EXPECT_THAT(recorder.events(), ElementsAre(toWindow(GUI_EVENT_INIT)));
        EXPECT_EQ(wm::nameOf(app.shell()), "Kite");
        EXPECT_EQ(labelOf(findWidget("v_sline")), " ");
        EXPECT_EQ(resource<int>(findWidget("v_gauge"), XmNvalue), 0);
    });
}

// More often than the toolkit would bear with displays at addresses that it knows.
GUI_STARTUP_TEST(Start, FrameCanBeOpenedManyTimes)
{
    constexpr int kTimes = 5;
    for (int i = 0; i < kTimes; ++i) {
        app.whenShown("v_infobox", [](Shown box) { box.key(XK_Return); });
        app.run([] { guiInfoBox("Once more"); });
    }
    EXPECT_EQ(recorder.count(GUI_EVENT_INIT), kTimes);
}

GUI_STARTUP_TEST(Start, ReturnsZeroAtTheEnd)
{
    EXPECT_EQ(app.run([] {}), 0);
}
