// What printing comes to.

#include "printing_support.h"

using namespace kite::testing;
using ::testing::IsEmpty;

GUI_TEST(PrintResult, IsThatTheCommandWasRun)
{
    // Is that the command was run.
    {
        for (const int status : {0, 1, 255, -2}) {
            host.setExecResult(status);
            EXPECT_THAT(errorsDuring([] { EXPECT_EQ(print("file"), 0); }), IsEmpty()) << status;
        }
        host.setExecResult(-1);
        EXPECT_MISUSE(print("file"), "Could not execute print command", -1);
        EXPECT_FALSE(printShell());
        EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd"));
    }

    // The box has gone before the message comes.
    {
        host.setExecResult(-1);
        app.whenShown("v_errorbox", [&](Shown box) {
            EXPECT_EQ(XtParent(box.shell()), app.find("v_mainwnd"));
            EXPECT_FALSE(printShell());
            box.click("OK");
        });
        EXPECT_EQ(print("file"), -1);
    }
}
