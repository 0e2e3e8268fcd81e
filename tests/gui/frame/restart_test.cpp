// guiRestart: everything that it takes back, and the first event again.

#include <Xm/CascadeB.h>
#include <Xm/Text.h>

#include "gui_test.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

// An event that the user could have caused.
void raise(int event, int id)
{
    static int raised[2];
    raised[0] = event;
    raised[1] = id;
    guiRunPlugin([](GuiHandler dispatch) { return dispatch(raised[0], raised[1], 0, 0); });
}

void setOutput(const char* text)
{
    XmTextSetString(findWidget("v_text"), const_cast<char*>(text));
}

std::string output()
{
    return textOf(findWidget("v_text"));
}

}  // namespace

GUI_TEST(Restart, ReturnsZero)
{
    EXPECT_EQ(guiRestart(), 0);
}

GUI_TEST(Restart, RestoresTheTitle)
{
    guiSetFrameTitle("other");
    guiRestart();
    EXPECT_TRUE(pumpUntil([&] { return wm::nameOf(app.shell()) == "Kite"; }));
}

GUI_TEST(Restart, BlanksStatusLineAndGauge)
{
    guiSetStatusLine("busy");
    guiSetProgress(70);
    guiRestart();
    EXPECT_EQ(labelOf(findWidget("v_sline")), " ");
    EXPECT_EQ(resource<int>(findWidget("v_gauge"), XmNvalue), 0);
}

GUI_TEST(Restart, ClearsTheOutputArea)
{
    setOutput("one\ntwo\nthree");
    guiRestart();
    EXPECT_EQ(output(), "");
}

GUI_TEST(Restart, ClearsOnlyWhatIsSelected)
{
    setOutput("one\ntwo\nthree");
    XmTextSetSelection(findWidget("v_text"), 4, 8, XtLastTimestampProcessed(toolkit::display()));
    guiRestart();
    EXPECT_EQ(output(), "one\nthree");
}

GUI_TEST(Restart, ClearsWhatTheUserSelected)
{
    setOutput("word more");
    robot.doubleClick(findWidget("v_text"), LeftButton, Point{12, 12});
    guiRestart();
    EXPECT_EQ(output(), " more");
}

GUI_TEST(Restart, BringsTheToolbarBackEmpty)
{
    EXPECT_EQ(findWidget("v_toolbar"), nullptr);
    guiRestart();
    Widget const toolbar = findWidget("v_toolbar");
    ASSERT_TRUE(toolbar);
    EXPECT_THAT(childrenOf(toolbar), IsEmpty());
    EXPECT_EQ(XtParent(toolbar), findWidget("v_mainwnd"));
    EXPECT_EQ(resource<Dimension>(toolbar, XmNheight), 37);
}

GUI_STARTUP_TEST(Restart, BeforeTheStartLeavesOneToolbar)
{
    app.init();
    guiRestart();
    settle();
    EXPECT_EQ(findWidgets("v_toolbar").size(), 1U);
}

GUI_TEST(Restart, KeepsWhatStandsOnTheMenuBar)
{
    Widget const menuBar = findWidget("v_menubar");
    Widget const title =
        XtVaCreateManagedWidget("title", xmCascadeButtonWidgetClass, menuBar, nullptr);
    guiRestart();
    settle();
    EXPECT_EQ(findWidget("v_menubar"), menuBar);
    EXPECT_EQ(findWidget("title"), title);
}

GUI_TEST(Restart, RaisesNothingByItself)
{
    recorder.clear();
    guiRestart();
    settle();
    EXPECT_THAT(recorder.events(), IsEmpty());
}

GUI_TEST(Restart, NextEventIsFollowedByInit)
{
    recorder.clear();
    guiRestart();
    raise(GUI_EVENT_COMMAND, 5);
    EXPECT_THAT(recorder.events(),
                ElementsAre(toWindow(GUI_EVENT_COMMAND, 5), toWindow(GUI_EVENT_INIT)));
    raise(GUI_EVENT_COMMAND, 6);
    EXPECT_EQ(recorder.count(GUI_EVENT_INIT), 1);
}

GUI_TEST(Restart, WithinAHandlerIsFollowedByInit)
{
    recorder.clear();
    recorder.onEvent(GUI_EVENT_COMMAND, 5, [] { guiRestart(); });
    raise(GUI_EVENT_COMMAND, 5);
    EXPECT_THAT(recorder.events(),
                ElementsAre(toWindow(GUI_EVENT_COMMAND, 5), toWindow(GUI_EVENT_INIT)));
}

GUI_STARTUP_TEST(Restart, InitGoesToTheHostCallbackWithoutAWindowHandler)
{
    app.windowHandler = nullptr;
    app.run([&] {
        recorder.clear();
        guiRestart();
        raise(GUI_EVENT_COMMAND, 5);
        EXPECT_THAT(recorder.events(),
                    ElementsAre(toHost(GUI_EVENT_COMMAND, 5), toHost(GUI_EVENT_INIT)));
    });
}

// A key of a real user does it as well.
GUI_TEST(Restart, NextKeyIsFollowedByInit)
{
    app.click("v_text");
    recorder.clear();
    guiRestart();
    app.key(XK_F2);
    EXPECT_THAT(recorder.events(),
                ElementsAre(toWindow(GUI_EVENT_COMMAND, -2), toWindow(GUI_EVENT_INIT)));
}

GUI_TEST(Restart, FrameIsShownAnew)
{
    guiRestart();
    raise(GUI_EVENT_COMMAND, 5);
    settle();
    EXPECT_EQ(findWidget("v_toolbar"), nullptr);
    EXPECT_TRUE(XtIsManaged(findWidget("v_menubar")));
    EXPECT_EQ(resource<Widget>(findWidget("v_mainwnd"), XmNmenuBar), findWidget("v_menubar"));
    EXPECT_TRUE(isShown(findWidget("v_text")));
}

GUI_TEST(Restart, TwiceIsOnce)
{
    recorder.clear();
    guiRestart();
    guiRestart();
    settle();
    EXPECT_EQ(findWidgets("v_toolbar").size(), 1U);
    raise(GUI_EVENT_COMMAND, 5);
    EXPECT_EQ(recorder.count(GUI_EVENT_INIT), 1);
}

GUI_STARTUP_TEST(Restart, RestoresTheTitleOfTheHost)
{
    guiSetAppInfo("My Host", nullptr);
    app.run([&] {
        guiSetFrameTitle("other");
        guiRestart();
        EXPECT_TRUE(pumpUntil([&] { return wm::nameOf(app.shell()) == "My Host"; }));
    });
}

GUI_TEST(Restart, LeavesTheOutputAreaUsable)
{
    setOutput("old");
    guiRestart();
    app.click("v_text");
    app.type("new");
    EXPECT_EQ(output(), "new");
}
