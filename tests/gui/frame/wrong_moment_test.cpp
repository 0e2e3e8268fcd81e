// Calls before there is a frame, and after its end: nothing happens, and a host gets the failure value.

#include "gui_test.h"

using namespace kite::testing;
using ::testing::IsEmpty;

namespace {

void callSetters()
{
    guiSetFrameTitle("title");
    guiSetFrameTitle(nullptr);
    guiSetStatusLine("text");
    guiSetStatusLine(nullptr);
    guiSetProgress(50);
    guiMoveWin(10, 10, 400, 300);
    guiMoveWin(-1, -1, -1, -1);
    guiMoveWin(0, 0, 0, 0);
    guiRestart();
}

void callRunningFunctions()
{
    guiClose(0);
    guiTimer(100);
    guiTimer(0);
    guiBeep();
    guiSetOwner(nullptr);
    guiSetTopWnd(nullptr);
    EXPECT_EQ(guiGetTopWnd(), nullptr);
    EXPECT_EQ(guiUserBreak(), 0);
    char name[8] = "before";
    EXPECT_EQ(guiGetDropName(name, sizeof name), -1);
    EXPECT_STREQ(name, "");
}

void callBoxes()
{
    guiInfoBox("message");
    guiErrorBox("message");
    EXPECT_EQ(guiTipBox("text"), 0);
    EXPECT_EQ(guiOkCancelBox("message"), 0);
    EXPECT_EQ(guiYesNoBox("message"), 0);
    EXPECT_EQ(guiYesNoCancelBox("message"), -1);
    char answer[8] = "before";
    EXPECT_EQ(guiGetTextBox("prompt", answer, sizeof answer, 0), -1);
    EXPECT_STREQ(answer, "");
}

// Their message has no window to be shown in.
void callWithMisuse()
{
    guiClose(-1);
    EXPECT_EQ(guiGetDropName(nullptr, 10), -1);
    char one[1] = {'x'};
    EXPECT_EQ(guiGetDropName(one, 1), -1);
    EXPECT_EQ(guiGetTextBox("prompt", nullptr, 10, 0), -1);
}

int raiseEverything(GuiHandler dispatch)
{
    for (const int event : {GUI_EVENT_INIT, GUI_EVENT_DROP, GUI_EVENT_COMMAND, GUI_EVENT_TIMER})
        for (const int id : {-1, 0, 1}) dispatch(event, id, 0, 0);
    return 17;
}

void callPlugins()
{
    EXPECT_EQ(guiRunPlugin(nullptr), -1);
    EXPECT_EQ(guiRunPlugin(raiseEverything), 17);
    guiStartPlugin(raiseEverything);
    guiStartPlugin(nullptr);
}

void callEverything()
{
    callSetters();
    callRunningFunctions();
    callBoxes();
    callWithMisuse();
    callPlugins();
}

void expectThatNothingHappens()
{
    Recorder& recorder = Recorder::instance();
    Profile& profile = HostDouble::instance().profile();
    recorder.clear();
    profile.clearAccesses();
    callEverything();
    EXPECT_EQ(guiStart(Recorder::windowHandler()), -1);
    EXPECT_THAT(recorder.events(), IsEmpty());
    EXPECT_THAT(profile.accesses(), IsEmpty());
}

}  // namespace

GUI_STARTUP_TEST(WrongMoment, BeforeInitNothingHappens)
{
    expectThatNothingHappens();
}

// Nothing of it is left over.
GUI_STARTUP_TEST(WrongMoment, BeforeInitLeavesTheFrameAsItIs)
{
    callEverything();
    guiTimer(100);
    app.run([&] {
        EXPECT_EQ(wm::nameOf(app.shell()), "Kite");
        EXPECT_EQ(labelOf(findWidget("v_sline")), " ");
        EXPECT_EQ(resource<int>(findWidget("v_gauge"), XmNvalue), 0);
        EXPECT_EQ(wm::clientRect(app.shell()).width, 450);
        EXPECT_EQ(recorder.count(toWindow(GUI_EVENT_INIT)), 1);
    });
}

GUI_STARTUP_TEST(WrongMoment, AfterTheFrameIsClosedNothingHappens)
{
    app.hostCallback = nullptr;
    app.run([] {
        guiClose(0);
        expectThatNothingHappens();
    });
}

GUI_STARTUP_TEST(WrongMoment, AfterTheEndNothingHappens)
{
    app.hostCallback = nullptr;
    app.run([] {});
    expectThatNothingHappens();
}

GUI_STARTUP_TEST(WrongMoment, InitWhileTheClosedFramesLoopEndsDoesNothing)
{
    app.run([&] {
        guiClose(0);
        host.profile().clearAccesses();
        guiInit(Recorder::hostCallback());
        EXPECT_EQ(guiGetTopWnd(), nullptr);
        EXPECT_THAT(host.profile().accesses(), IsEmpty());
    });
    EXPECT_EQ(guiGetTopWnd(), nullptr);
}

GUI_STARTUP_TEST(WrongMoment, FrameRunsAgainAfterAllThat)
{
    app.run([] {});
    callEverything();
    recorder.clear();
    app.run([&] {
        EXPECT_EQ(recorder.count(toWindow(GUI_EVENT_INIT)), 1);
        guiSetStatusLine("again");
        EXPECT_EQ(labelOf(findWidget("v_sline")), "again");
    });
}

// Between guiInit and guiStart the frame can be seen: what needs no main loop works.
GUI_STARTUP_TEST(WrongMoment, BeforeTheStartTheFrameWorks)
{
    app.init();
    guiTimer(50);
    guiBeep();
    EXPECT_EQ(guiUserBreak(), 0);
    app.whenShown("v_askbox", [](Shown box) { box.key(XK_Return); });
    EXPECT_EQ(guiYesNoBox("Begin?"), 1);
    EXPECT_EQ(guiMoveWin(-1, -1, 500, 400), 0);
    EXPECT_TRUE(pumpUntil([&] { return wm::clientRect(app.shell()).width == 500; }));
}

// A host that has destroyed what is not its own.
GUI_STARTUP_TEST(WrongMoment, PartsThatAreGoneAreLeftAlone)
{
    for (const char* const part :
         {"v_menubar", "v_toolbar", "v_scroll", "v_text", "v_statusbar", "v_sline", "v_gauge"}) {
        recorder.onEvent(GUI_EVENT_INIT, [&] { XtDestroyWidget(findWidget(part)); });
        EXPECT_EQ(app.run([] {
            settle();
            callSetters();
        }),
                  0)
            << part;
    }
}

// The host is asked for its settings while the frame is built: no frame is to be seen yet.
GUI_STARTUP_TEST(WrongMoment, HostServicesOfTheStartFindNoFrame)
{
    int calls = 0;
    host.profile().onRead([&](const std::string&) {
        ++calls;
        EXPECT_EQ(guiGetTopWnd(), nullptr);
        EXPECT_EQ(guiStart(Recorder::windowHandler()), -1);
        guiInit(Recorder::hostCallback());
        guiClose(0);
        callSetters();
    });
    app.init();
    host.profile().onRead(nullptr);
    EXPECT_GE(calls, 10);
    EXPECT_EQ(app.run([&] { EXPECT_EQ(recorder.count(toWindow(GUI_EVENT_INIT)), 1); }), 0);
}
