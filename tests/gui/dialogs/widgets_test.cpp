// The widgets of a dialog: names, classes and resources that users' resource files and hosts count on.

#include <Xm/BulletinB.h>
#include <Xm/DialogS.h>
#include <Xm/MwmUtil.h>
#include <Xm/Protocols.h>

#include "dialogs_support.h"

using namespace kite::testing;
using ::testing::Contains;

namespace {

void expectShell(Widget shell, Widget parent)
{
    EXPECT_STREQ(XtName(shell), "v_dlgshell");
    EXPECT_TRUE(XmIsDialogShell(shell));
    EXPECT_EQ(XtParent(shell), parent);
    EXPECT_FALSE(resource<Boolean>(shell, XmNallowShellResize));
    EXPECT_EQ(resource<unsigned char>(shell, XmNdeleteResponse), XmDO_NOTHING);
}

void expectBoard(Widget dialog, Widget shell)
{
    EXPECT_TRUE(XmIsBulletinBoard(dialog));
    EXPECT_EQ(XtParent(dialog), shell);
    EXPECT_EQ(resource<unsigned char>(dialog, XmNdialogStyle), XmDIALOG_FULL_APPLICATION_MODAL);
    EXPECT_FALSE(resource<Boolean>(dialog, XmNautoUnmanage));
    EXPECT_TRUE(resource<Boolean>(dialog, XmNnoResize));
    EXPECT_EQ(resource<unsigned char>(dialog, XmNresizePolicy), XmRESIZE_NONE);
    EXPECT_EQ(resource<Dimension>(dialog, XmNmarginWidth), 0);
    EXPECT_EQ(resource<Dimension>(dialog, XmNmarginHeight), 0);
}

}  // namespace

GUI_TEST(DialogWidgets, AreMadeByTheFirstCall)
{
    ASSERT_EQ(guiDialog("Dialog"), 0);
    Widget const shell = app.find("v_dlgshell");
    Widget const dialog = app.find("v_dlgbbr");
    expectShell(shell, app.find("v_mainwnd"));
    expectBoard(dialog, shell);
    EXPECT_EQ(resource<XtPointer>(dialog, XmNuserData), nullptr);
    EXPECT_FALSE(XtIsManaged(dialog));
}

GUI_TEST(DialogWidgets, KeepTheirResourcesWhileTheyRun)
{
    // Hold the handler while they run.
    buildDialog();
    runWhileShown([&](Shown dialog) {
        EXPECT_EQ(resource<XtPointer>(dialog.widget(), XmNuserData),
                  reinterpret_cast<XtPointer>(Recorder::dialogHandler()));
        expectShell(dialog.shell(), app.find("v_mainwnd"));
        expectBoard(dialog.widget(), dialog.shell());
    });

    // Are transient and accept close requests.
    buildDialog();
    runWhileShown([&](Shown dialog) {
        EXPECT_EQ(wm::transientFor(dialog.shell()), windowOf(app.shell()));
        EXPECT_THAT(wm::protocolsOf(dialog.shell()), Contains("WM_DELETE_WINDOW"));
    });

    // Cannot be resized.
    buildDialog();
    runWhileShown([&](Shown dialog) {
        const int functions = resource<int>(dialog.shell(), XmNmwmFunctions);
        EXPECT_NE(functions, -1);
        EXPECT_FALSE(functions & MWM_FUNC_ALL);
        EXPECT_FALSE(functions & MWM_FUNC_RESIZE);
    });

    // Go with the dialog.
    buildDialog();
    guiClose(0);
    EXPECT_FALSE(findWidget("v_dlgshell"));
    buildDialog();
    runWhileShown([](Shown) {});
    EXPECT_FALSE(findWidget("v_dlgshell"));
}

GUI_TEST(DialogWidgets, BlockTheFrame)
{
    buildDialog();
    recorder.clear();
    runWhileShown([&](Shown) {
        robot.moveTo(rectOf(app.find("v_text")).centre());
        robot.click();
        settle();
        robot.key(XK_F2);
        EXPECT_TRUE(
            holdsFor([&] { return recorder.count(GUI_EVENT_COMMAND) == 0; }, milliseconds{150}));
    });
}
