// guiClose: closes the top window.

#include <Xm/BulletinB.h>
#include <Xm/Form.h>

#include <climits>
#include <cstring>

#include "events_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

const std::string kNegative = "Close: negative return code - 0 is used";

}  // namespace

GUI_STARTUP_TEST(Close, DoesNothingWithoutATopWindow)
{
    guiClose(0);
    guiClose(-1);
    app.run([&] {
        Widget const mainWindow = guiGetTopWnd();
        guiSetTopWnd(nullptr);
        guiClose(0);
        EXPECT_TRUE(isShown(mainWindow));
        guiSetTopWnd(mainWindow);
    });
    guiClose(0);
    guiClose(-1);
    EXPECT_THAT(recorder.events(), ElementsAre(toWindow(GUI_EVENT_INIT)));
}

GUI_STARTUP_TEST(Close, ClosesTheFrame)
{
    bool isAfterwards = false;
    app.run([&] {
        guiClose(0);
        EXPECT_EQ(guiGetTopWnd(), nullptr);
        guiClose(0);
        isAfterwards = true;
    });
    EXPECT_TRUE(isAfterwards);
}

GUI_TEST(Close, NegativeCodesAreReportedAndCloseAllTheSame)
{
    EXPECT_MISUSE(guiClose(-1), kNegative);
    EXPECT_EQ(guiGetTopWnd(), nullptr);
}

GUI_TEST(Close, MostNegativeCodeIsReported)
{
    EXPECT_MISUSE(guiClose(INT_MIN), kNegative);
    EXPECT_EQ(guiGetTopWnd(), nullptr);
}

GUI_TEST(Close, ZeroIsNotReported)
{
    EXPECT_THAT(errorsDuring([] { guiClose(0); }), IsEmpty());
    EXPECT_EQ(guiGetTopWnd(), nullptr);
}

GUI_TEST(Close, LargestCodeIsNotReported)
{
    EXPECT_THAT(errorsDuring([] { guiClose(INT_MAX); }), IsEmpty());
    EXPECT_EQ(guiGetTopWnd(), nullptr);
}

GUI_TEST(Close, NegativeCodeInABoxIsReportedAndClosesTheBox)
{
    std::vector<std::string> messages;
    app.whenShown("v_askbox", [&](Shown) { messages = errorsDuring([] { guiClose(-3); }); });
    EXPECT_EQ(guiYesNoBox("Really?"), GUI_NO);
    EXPECT_THAT(messages, ElementsAre(kNegative));
    EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd"));
}

GUI_STARTUP_TEST(Close, MayComeFromAHandler)
{
    recorder.onEvent(GUI_EVENT_COMMAND, -2, [] { guiClose(0); });
    app.run([&] {
        app.key(XK_F2);
        EXPECT_EQ(guiGetTopWnd(), nullptr);
    });
    EXPECT_EQ(recorder.events().back(), toWindow(GUI_EVENT_COMMAND, -2));
}

GUI_STARTUP_TEST(Close, MayComeFromATimer)
{
    recorder.onEvent(GUI_EVENT_TIMER, [] { guiClose(0); });
    app.run([] {
        guiTimer(100);
        EXPECT_TRUE(pumpUntil([] { return guiGetTopWnd() == nullptr; }));
    });
}

GUI_STARTUP_TEST(Close, MayComeFromTheHostCallback)
{
    app.windowHandler = nullptr;
    recorder.onEvent(GUI_EVENT_COMMAND, -2, [] { guiClose(0); });
    app.run([&] {
        app.key(XK_F2);
        EXPECT_EQ(guiGetTopWnd(), nullptr);
    });
}

GUI_TEST(Close, InABoxClosesTheBoxAlone)
{
    app.whenShown("v_askbox", [&](Shown) {
        guiClose(0);
        EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd"));
    });
    EXPECT_EQ(guiYesNoBox("Really?"), GUI_NO);
    EXPECT_EQ(findWidget("v_askbox"), nullptr);
    EXPECT_TRUE(isShown(app.find("v_text")));
}

GUI_TEST(Close, InABoxAnswersLikeItsCloseRequest)
{
    app.whenShown("v_askbox", [](Shown) { guiClose(1); });
    EXPECT_EQ(guiYesNoCancelBox("Save?"), GUI_CANCEL);
    app.whenShown("v_askbox", [](Shown) { guiClose(1); });
    EXPECT_EQ(guiOkCancelBox("Go on?"), GUI_NO);
    app.whenShown("v_promptbox", [](Shown) { guiClose(1); });
    char buffer[10] = "old";
    EXPECT_EQ(guiGetTextBox("Name", buffer, sizeof buffer, 0), GUI_FAILED);
    EXPECT_STREQ(buffer, "");
}

GUI_TEST(Close, InABoxFromAHandler)
{
    recorder.onEvent(GUI_EVENT_TIMER, [] { guiClose(0); });
    guiTimer(100);
    EXPECT_EQ(guiYesNoBox("Time is short"), GUI_NO);
    guiTimer(0);
    EXPECT_EQ(recorder.count(toHost(GUI_EVENT_TIMER)), 1);
    EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd"));
}

GUI_TEST(Close, InNestedBoxesClosesTheInnermost)
{
    app.whenShown("v_askbox", [&](Shown outer) {
        app.whenShown("v_infobox", [](Shown) { guiClose(0); });
        guiInfoBox("Inner");
        EXPECT_EQ(guiGetTopWnd(), outer.widget());
        EXPECT_TRUE(isShown(outer.widget()));
        outer.click("Yes");
    });
    EXPECT_EQ(guiYesNoBox("Outer"), GUI_YES);
}

GUI_TEST(Close, TwiceClosesBothNestedBoxes)
{
    app.whenShown("v_askbox", [&](Shown) {
        app.whenShown("v_infobox", [](Shown) {
            guiClose(0);
            guiClose(0);
        });
        guiInfoBox("Inner");
    });
    EXPECT_EQ(guiYesNoBox("Outer"), GUI_NO);
    EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd"));
    EXPECT_TRUE(isShown(app.find("v_text")));
}

GUI_STARTUP_TEST(Close, OnceMoreThanThereAreBoxesClosesTheFrame)
{
    int result = 77;
    EXPECT_EQ(app.run([&] {
        app.whenShown("v_askbox", [&](Shown) {
            app.whenShown("v_infobox", [](Shown) {
                for (int i = 0; i < 3; ++i) guiClose(0);
            });
            guiInfoBox("Inner");
        });
        result = guiYesNoBox("Outer");
        EXPECT_EQ(guiGetTopWnd(), nullptr);
    }),
              0);
    EXPECT_EQ(result, GUI_NO);
}

GUI_TEST(Close, EndsAWindowOfTheHost)
{
    Widget const mainWindow = guiGetTopWnd();
    Widget const window = makeWindow(Recorder::dialogHandler());
    bool isDestroyed = false;
    onCallback(XtParent(window), XmNdestroyCallback, [&] { isDestroyed = true; });
    XtManageChild(window);
    guiSetTopWnd(window);
    guiClose(0);
    EXPECT_TRUE(isDestroyed);
    EXPECT_EQ(guiGetTopWnd(), mainWindow);
    EXPECT_TRUE(isShown(app.find("v_text")));
}

GUI_TEST(Close, EndsNestedWindowsOfTheHostOneByOne)
{
    Widget const mainWindow = guiGetTopWnd();
    Widget const outer = makeWindow(nullptr);
    guiSetTopWnd(outer);
    guiSetTopWnd(makeWindow(nullptr));
    guiClose(0);
    EXPECT_EQ(guiGetTopWnd(), outer);
    guiClose(0);
    EXPECT_EQ(guiGetTopWnd(), mainWindow);
}

GUI_TEST(Close, LetsEventsPassAgainAfterAWindowOfTheHost)
{
    guiSetTopWnd(makeWindow(Recorder::dialogHandler()));
    guiClose(0);
    recorder.clear();
    app.key(XK_F2);
    EXPECT_THAT(recorder.events(), ElementsAre(toWindow(GUI_EVENT_COMMAND, -2)));
}

// A window that hangs on the frame's shell, not on the main window: the frame is next all the same.
GUI_TEST(Close, OfAPopupOfTheFramesShellLeavesTheFrame)
{
    Widget const mainWindow = guiGetTopWnd();
    char name[] = "window";
    guiSetTopWnd(XmCreateBulletinBoardDialog(app.shell(), name, nullptr, 0));
    guiClose(0);
    EXPECT_EQ(guiGetTopWnd(), mainWindow);
    EXPECT_TRUE(isShown(app.find("v_text")));
}

GUI_TEST(Close, OfAnotherShellOfTheHostLeavesTheFrame)
{
    Widget const mainWindow = guiGetTopWnd();
    Widget const shell =
        XtVaAppCreateShell("other", "Other", applicationShellWidgetClass, toolkit::display(),
                           XmNwidth, 100, XmNheight, 100, nullptr);
    bool isDestroyed = false;
    onCallback(shell, XmNdestroyCallback, [&] { isDestroyed = true; });
    guiSetTopWnd(XtVaCreateManagedWidget("form", xmFormWidgetClass, shell, nullptr));
    XtRealizeWidget(shell);
    guiClose(0);
    EXPECT_TRUE(isDestroyed);
    EXPECT_EQ(guiGetTopWnd(), mainWindow);
    EXPECT_TRUE(isShown(app.find("v_text")));
}

// Its shell is the frame's.
GUI_STARTUP_TEST(Close, OfAPartOfTheFrameEndsTheMainLoop)
{
    EXPECT_EQ(app.run([&] {
        guiSetTopWnd(app.find("v_text"));
        guiClose(0);
        EXPECT_EQ(guiGetTopWnd(), nullptr);
    }),
              0);
}
