// failing_cases.cpp: tests that have to fail. failure_test.cpp runs each and looks at how it does.

#include "gui_test.h"

#include <signal.h>
#include <unistd.h>

using namespace kite::testing;

GUI_TEST(FailingCase, Hangs)
{
    EXPECT_EQ(guiYesNoBox("nobody answers"), GUI_YES);
}

GUI_TEST(FailingCase, HangsInNoLoop)
{
    while (true) pause();
}

GUI_TEST(FailingCase, HangsDeaf)
{
    signal(SIGUSR2, SIG_IGN);
    guiInfoBox("nobody answers, and the watchdog's question is not heard");
}

GUI_TEST(FailingCase, Crashes)
{
    raise(SIGABRT);
}

GUI_TEST(FailingCase, ScriptIsNotPlayed)
{
    app.whenShown("v_askbox", [](Shown) {});
}

GUI_TEST(FailingCase, XError)
{
    XMapWindow(toolkit::display(), 1);
    XSync(toolkit::display(), False);
}

GUI_TEST(FailingCase, ToolkitWarning)
{
    XtVaSetValues(app.find("v_text"), XmNunitType, 77, nullptr);
}

GUI_TEST(FailingCase, ToolkitError)
{
    XtAppError(toolkit::context(), "this is fatal");
}

GUI_TEST(FailingCase, ExpectedXErrorDoesNotCome)
{
    const ExpectedXError expected{BadWindow};
}

GUI_TEST(FailingCase, ExpectedWarningDoesNotCome)
{
    const ExpectedWarning expected{"Illegal value"};
}

GUI_TEST(FailingCase, MisuseSaysSomethingElse)
{
    EXPECT_MISUSE(guiGetDropName(nullptr, 5), "GetDropName: wrong buffer", -1);
}

GUI_TEST(FailingCase, MisuseReturnsSomethingElse)
{
    EXPECT_MISUSE(guiGetDropName(nullptr, 5), "GetDropName: invalid buffer", 0);
}

GUI_TEST(FailingCase, NoMisuse)
{
    EXPECT_MISUSE(guiSetProgress(10), "SetProgress: invalid value");
}

GUI_TEST(FailingCase, ClickOnNothing)
{
    app.click("v_nothing");
}

GUI_TEST(FailingCase, ClickOnWhatIsNotShown)
{
    XtUnmanageChild(app.find("v_statusbar"));
    app.click("v_gauge");
}

GUI_TEST(FailingCase, ClickOnWhatIsCovered)
{
    app.whenShown("v_infobox", [this](Shown box) {
        const Rect covered = rectOf(box.widget());
        const Rect text = rectOf(app.find("v_text"));
        robot.click(app.find("v_text"), LeftButton,
                    Point{covered.centre().x - text.x, covered.centre().y - text.y});
        box.click("OK");
    });
    guiInfoBox("over the text");
}

GUI_STARTUP_TEST(FailingCase, OneOfTwoThatFails)
{
    FAIL();
}

GUI_STARTUP_TEST(PassingCase, OneOfTwoThatPasses)
{
    SUCCEED();
}
