// The Output area of a frame that is not there: nothing happens.

#include "output_support.h"

using namespace kite::testing;

namespace {

void expectNothing()
{
    char buffer[] = "####";
    guiWriteText("a");
    guiWriteLine("a");
    guiWriteSel("a");
    guiWriteHTML("a");
    guiHTML2Rich(nullptr, "a");
    guiClearOutput();
    EXPECT_EQ(guiOutputLineCount(), -1);
    EXPECT_EQ(guiOutputLine(0, buffer, sizeof buffer), -1);
    EXPECT_STREQ(buffer, "");
    for (const int which : {0, 1, 2}) {
        EXPECT_EQ(guiGetCurPos(which), -1);
        EXPECT_EQ(guiGetCurLine(which), -1);
    }
    EXPECT_EQ(guiSelOutputLine(1, 0, -1), 0);
    EXPECT_EQ(guiSaveOutput("saved"), -1);
    EXPECT_EQ(contentsOf("saved"), "");
}

}  // namespace

GUI_STARTUP_TEST(NoOutput, BeforeTheStart)
{
    expectNothing();
    EXPECT_EQ(guiOutputLine(0, nullptr, 0), -1);
    EXPECT_EQ(guiSaveOutput(nullptr), -1);
}

GUI_STARTUP_TEST(NoOutput, AfterClosing)
{
    host.profile().setInt("logfm", 1);
    app.run([] { guiWriteLine("last"); });
    const std::string log = contentsOf("output.log");
    expectNothing();
    EXPECT_EQ(contentsOf("output.log"), log) << "the log is closed";
}

GUI_STARTUP_TEST(NoOutput, InTheHandlerThatClosesTheFrame)
{
    app.init();
    recorder.onEvent(GUI_EVENT_INIT, 0, [] {
        guiWriteLine("a");
        guiClose(0);
        expectNothing();
    });
    EXPECT_EQ(guiStart(Recorder::windowHandler()), 0);
    expectNothing();
}

GUI_TEST(NoOutput, WhenTheTextWasDestroyed)
{
    guiWriteLine("a");
    guiOutputLineCount();
    XtDestroyWidget(outputText());
    expectNothing();
    settle();
    expectNothing();
    guiRestart();
    expectNothing();
}
