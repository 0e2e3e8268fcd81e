// The top window: the one that events go to.

#include <Xm/Form.h>

#include "gui_test.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

void raise()
{
    guiRunPlugin([](GuiHandler dispatch) { return dispatch(GUI_EVENT_COMMAND, 7, 1, 2); });
}

const Event kToWindow = toWindow(GUI_EVENT_COMMAND, 7, 1, 2);
const Event kToHost = toHost(GUI_EVENT_COMMAND, 7, 1, 2);
const Event kToDialog = toDialog(GUI_EVENT_COMMAND, 7, 1, 2);

// A window of the host's own, with a handler or none.
Widget makeWindow(GuiHandler handler)
{
    return XtVaCreateManagedWidget("host_form", xmFormWidgetClass, findWidget("v_statusbar"),
                                   XmNuserData, reinterpret_cast<XtPointer>(handler), nullptr);
}

}  // namespace

GUI_TEST(TopWindow, IsTheMainWindow)
{
    EXPECT_EQ(guiGetTopWnd(), findWidget("v_mainwnd"));
    recorder.clear();
    raise();
    EXPECT_THAT(recorder.events(), ElementsAre(kToWindow));
}

GUI_STARTUP_TEST(TopWindow, IsNoneBeforeInit)
{
    EXPECT_EQ(guiGetTopWnd(), nullptr);
}

GUI_STARTUP_TEST(TopWindow, IsNoneAfterTheEnd)
{
    app.run([] {
        guiClose(0);
        EXPECT_EQ(guiGetTopWnd(), nullptr);
    });
    EXPECT_EQ(guiGetTopWnd(), nullptr);
}

GUI_TEST(TopWindow, HandlerStandsInTheUserDataOfTheMainWindow)
{
    EXPECT_EQ(resource<XtPointer>(findWidget("v_mainwnd"), XmNuserData),
              reinterpret_cast<XtPointer>(Recorder::windowHandler()));
}

GUI_TEST(TopWindow, CanBeReplaced)
{
    Widget const window = makeWindow(Recorder::dialogHandler());
    guiSetTopWnd(window);
    EXPECT_EQ(guiGetTopWnd(), window);
    recorder.clear();
    raise();
    EXPECT_THAT(recorder.events(), ElementsAre(kToDialog));
    guiSetTopWnd(findWidget("v_mainwnd"));
    raise();
    EXPECT_THAT(recorder.events(), ElementsAre(kToDialog, kToWindow));
}

GUI_TEST(TopWindow, WithoutAHandlerLeavesEventsToTheHostCallback)
{
    guiSetTopWnd(makeWindow(nullptr));
    recorder.clear();
    raise();
    EXPECT_THAT(recorder.events(), ElementsAre(kToHost));
    guiSetTopWnd(findWidget("v_mainwnd"));
}

GUI_TEST(TopWindow, NoneLeavesEventsToTheHostCallback)
{
    Widget const frame = guiGetTopWnd();
    guiSetTopWnd(nullptr);
    EXPECT_EQ(guiGetTopWnd(), nullptr);
    recorder.clear();
    raise();
    EXPECT_THAT(recorder.events(), ElementsAre(kToHost));
    guiSetTopWnd(frame);
}

GUI_TEST(TopWindow, NoneIsNotClosed)
{
    Widget const frame = guiGetTopWnd();
    guiSetTopWnd(nullptr);
    guiClose(0);
    guiSetTopWnd(frame);
    settle();
    EXPECT_TRUE(isShown(app.shell()));
    EXPECT_THAT(host.profile().writes(), IsEmpty());
}

GUI_TEST(TopWindow, IsTheMainWindowAgainWhenItsOwnIsDestroyed)
{
    Widget const window = makeWindow(Recorder::dialogHandler());
    guiSetTopWnd(window);
    XtDestroyWidget(window);
    settle();
    EXPECT_EQ(guiGetTopWnd(), findWidget("v_mainwnd"));
    recorder.clear();
    raise();
    EXPECT_THAT(recorder.events(), ElementsAre(kToWindow));
}

GUI_TEST(TopWindow, StaysWhenAnEarlierOneIsDestroyed)
{
    Widget const first = makeWindow(nullptr);
    Widget const second = makeWindow(nullptr);
    guiSetTopWnd(first);
    guiSetTopWnd(second);
    XtDestroyWidget(first);
    settle();
    EXPECT_EQ(guiGetTopWnd(), second);
    guiSetTopWnd(findWidget("v_mainwnd"));
}

GUI_TEST(TopWindow, OtherThanTheFrameKeepsTheFramesCloseRequestOut)
{
    guiSetTopWnd(makeWindow(Recorder::dialogHandler()));
    recorder.clear();
    wm::requestClose(app.shell());
    settle();
    EXPECT_THAT(recorder.events(), IsEmpty());
    EXPECT_TRUE(isShown(app.shell()));
    guiSetTopWnd(findWidget("v_mainwnd"));
}

GUI_TEST(TopWindow, IsTheMainWindowAfterABox)
{
    app.whenShown("v_infobox", [](Shown box) {
        EXPECT_NE(guiGetTopWnd(), findWidget("v_mainwnd"));
        box.key(XK_Return);
    });
    guiInfoBox("A box.");
    EXPECT_EQ(guiGetTopWnd(), findWidget("v_mainwnd"));
}

// A gadget has no window of its own.
GUI_TEST(TopWindow, GadgetLeavesBoxesToTheWidgetAroundIt)
{
    guiSetTopWnd(app.find("v_sline"));
    app.whenShown("v_infobox", [](Shown box) { box.key(XK_Return); });
    guiInfoBox("A box.");
    EXPECT_EQ(guiGetTopWnd(), app.find("v_sline"));
    guiSetTopWnd(app.find("v_mainwnd"));
}
