// How the frame is shown with what the host has built.

#include <Xm/CascadeB.h>
#include <Xm/PushB.h>
#include <Xm/Text.h>

#include "events_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;

namespace {

constexpr int kToolbarHeight = 37;

// As a toolbar button is, in the time in which the host builds its commands.
void addToolbarButton()
{
    XtVaCreateManagedWidget("button", xmPushButtonWidgetClass, findWidget("v_toolbar"), nullptr);
}

// A menu bar without menus has next to no height.
void addMenu()
{
    XtVaCreateManagedWidget("menu", xmCascadeButtonWidgetClass, findWidget("v_menubar"), nullptr);
}

int heightOf(Widget widget)
{
    return resource<Dimension>(widget, XmNheight);
}

int widthOf(Widget widget)
{
    return resource<Dimension>(widget, XmNwidth);
}

}  // namespace

GUI_STARTUP_TEST(ShowStep, InitComesFirst)
{
    bool wasManaged = true;
    recorder.onEvent(GUI_EVENT_INIT, 0, [&] { wasManaged = XtIsManaged(app.find("v_menubar")); });
    app.run(
        [&] { EXPECT_THAT(recorder.events(), ElementsAre(toWindow(GUI_EVENT_INIT, 0, 0, 0))); });
    EXPECT_FALSE(wasManaged);
}

GUI_STARTUP_TEST(ShowStep, InitGoesToTheHostCallbackWithoutWindowHandler)
{
    app.windowHandler = nullptr;
    app.run([&] { EXPECT_THAT(recorder.events(), ElementsAre(toHost(GUI_EVENT_INIT, 0, 0, 0))); });
}

GUI_TEST(ShowStep, ShowsTheMenuBar)
{
    Widget const menuBar = app.find("v_menubar");
    EXPECT_TRUE(XtIsManaged(menuBar));
    EXPECT_EQ(resource<Widget>(app.find("v_mainwnd"), XmNmenuBar), menuBar);
}

GUI_TEST(ShowStep, DestroysAToolbarWithoutButtons)
{
    EXPECT_EQ(findWidget("v_toolbar"), nullptr);
    EXPECT_EQ(resource<Widget>(app.find("v_mainwnd"), XmNcommandWindow), nullptr);
}

GUI_TEST(ShowStep, OutputAreaReachesFromTheMenuBarToTheStatusBar)
{
    const Rect frame = rectOf(app.find("v_mainwnd"));
    const Rect scroller = rectOf(app.find("v_scroll"));
    EXPECT_EQ(scroller.y, rectOf(app.find("v_menubar")).bottom());
    EXPECT_EQ(scroller.bottom(), rectOf(app.find("v_statusbar")).y);
    EXPECT_EQ(scroller.width, frame.width);
}

GUI_STARTUP_TEST(ShowStep, ShowsAToolbarWithButtons)
{
    recorder.onEvent(GUI_EVENT_INIT, 0, addToolbarButton);
    app.run([&] {
        Widget const toolbar = app.find("v_toolbar");
        EXPECT_TRUE(isShown(toolbar));
        EXPECT_EQ(resource<Widget>(app.find("v_mainwnd"), XmNcommandWindow), toolbar);
    });
}

GUI_STARTUP_TEST(ShowStep, PlacesTheToolbarBelowTheMenuBar)
{
    recorder.onEvent(GUI_EVENT_INIT, 0, [] {
        addMenu();
        addToolbarButton();
    });
    app.run([&] {
        Widget const menuBar = app.find("v_menubar");
        Widget const toolbar = app.find("v_toolbar");
        EXPECT_EQ(resource<Position>(toolbar, XmNx), 0);
        EXPECT_EQ(resource<Position>(toolbar, XmNy), heightOf(menuBar));
        EXPECT_EQ(widthOf(toolbar), widthOf(menuBar));
        EXPECT_EQ(heightOf(toolbar), kToolbarHeight);
    });
}

GUI_STARTUP_TEST(ShowStep, ToolbarTakesItsHeightFromTheOutputArea)
{
    Rect before;
    recorder.onEvent(GUI_EVENT_INIT, 0, [&] {
        addMenu();
        addToolbarButton();
        before = rectOf(app.find("v_scroll"));
    });
    app.run([&] {
        Widget const menuBar = app.find("v_menubar");
        Widget const scroller = app.find("v_scroll");
        EXPECT_EQ(resource<Position>(scroller, XmNy), heightOf(menuBar) + kToolbarHeight);
        EXPECT_EQ(rectOf(scroller).y, rectOf(app.find("v_toolbar")).bottom());
        EXPECT_EQ(rectOf(scroller).bottom(), before.bottom());
        EXPECT_EQ(rectOf(scroller).bottom(), rectOf(app.find("v_statusbar")).y);
    });
}

GUI_STARTUP_TEST(ShowStep, PutsTheInsertionPointAtTheEndOfTheOutput)
{
    app.init();
    Widget const text = app.find("v_text");
    char lines[] = "first\nsecond\nthird";
    XmTextSetString(text, lines);
    XmTextSetInsertionPosition(text, 0);
    app.run([&] {
        EXPECT_EQ(XmTextGetInsertionPosition(text), static_cast<XmTextPosition>(sizeof lines - 1));
    });
}

GUI_STARTUP_TEST(ShowStep, EndsWhenTheHostClosesTheFrameInInit)
{
    app.init();
    recorder.onEvent(GUI_EVENT_INIT, 0, [] { guiClose(0); });
    EXPECT_EQ(guiStart(Recorder::windowHandler()), 0);
    EXPECT_THAT(recorder.events(), ElementsAre(toWindow(GUI_EVENT_INIT)));
}
