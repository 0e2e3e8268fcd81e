// What the box belongs to.

#include <Xm/Form.h>

#include "printing_support.h"

using namespace kite::testing;
using ::testing::IsEmpty;

GUI_TEST(PrintParent, IsTheTopWindow)
{
    ASSERT_EQ(guiDialog("Dialog"), 0);
    guiButton(2, 0, 0, 40, "Print", 0);
    Widget dialog = nullptr;
    recorder.onEvent(GUI_EVENT_COMMAND, 2, [&] {
        EXPECT_EQ(printWhile([&] { EXPECT_EQ(XtParent(printShell()), dialog); }), 0);
        EXPECT_EQ(guiGetTopWnd(), dialog);
        guiClose(3);
    });
    app.whenShown("v_dlgbbr", [&](Shown shown) {
        dialog = shown.widget();
        shown.click("Print");
    });
    EXPECT_EQ(guiRunDialog(Recorder::dialogHandler()), 3);
}

GUI_STARTUP_TEST(PrintParent, IsNeededForPrinting)
{
    EXPECT_EQ(print("file"), -1);
    app.init();
    Widget const main = app.find("v_mainwnd");
    guiSetTopWnd(nullptr);
    EXPECT_EQ(print("file"), -1);
    guiSetTopWnd(main);
    app.run([] {});
    EXPECT_EQ(print("file"), -1);
    EXPECT_THAT(host.commands(), IsEmpty());
}

// Of a host that has an Xt application of its own, and no frame.
GUI_STARTUP_TEST(PrintParent, IsTheOwnerWithoutATopWindow)
{
    XtToolkitInitialize();
    XtAppContext const context = XtCreateApplicationContext();
    int count = 0;
    Display* const display =
        XtOpenDisplay(context, nullptr, "own", "Own", nullptr, 0, &count, nullptr);
    Widget const shell = XtVaAppCreateShell("own", "Own", applicationShellWidgetClass, display,
                                            XmNwidth, 300, XmNheight, 200, nullptr);
    Widget const form = XtVaCreateManagedWidget("form", xmFormWidgetClass, shell, nullptr);
    toolkit::attach(shell);
    watchToolkitErrors(context);
    XtRealizeWidget(shell);
    EXPECT_TRUE(pumpUntil([&] { return isShown(form) && wm::isSettled(shell); }));
    guiSetOwner(form);
    EXPECT_EQ(printWhile([&] {
                  EXPECT_EQ(XtParent(printShell()), form);
                  EXPECT_EQ(guiGetTopWnd(), printBox());
              }),
              0);
    EXPECT_FALSE(guiGetTopWnd());
    XtDestroyWidget(shell);
    XtDestroyApplicationContext(context);
}
