// The titles of dialogs.

#include "dialogs_support.h"

using namespace kite::testing;

namespace {

// As the window manager has it, and as the board keeps it.
void expectTitle(Shown dialog, const std::string& title)
{
    settle();
    EXPECT_EQ(dialog.title(), title);
    auto* const text = resource<XmString>(dialog.widget(), XmNdialogTitle);
    EXPECT_EQ(toString(text), title);
    XmStringFree(text);
}

}  // namespace

GUI_TEST(DialogTitle, IsTheOneOfItsFirstCall)
{
    for (const char* title : {"Name", "R&D: 100 %s", "", static_cast<const char*>(nullptr)}) {
        SCOPED_TRACE(title ? title : "null");
        buildDialog(title);
        EXPECT_STREQ(resource<char*>(app.find("v_dlgshell"), XmNtitle), title ? title : "");
        EXPECT_EQ(runWhileShown([&](Shown dialog) { expectTitle(dialog, title ? title : ""); }), 1);
    }
}

GUI_TEST(DialogTitle, IsSetWhileTheDialogRuns)
{
    recorder.onEvent(GUI_EVENT_INIT, [] { guiSetDialogTitle("In its first event"); });
    buildDialog("First");
    runWhileShown([](Shown dialog) {
        expectTitle(dialog, "In its first event");
        guiSetDialogTitle("Second & third");
        expectTitle(dialog, "Second & third");
        guiSetDialogTitle(nullptr);
        expectTitle(dialog, "");
        guiSetDialogTitle("");
        expectTitle(dialog, "");
    });
}

GUI_TEST(DialogTitle, IsThatOfTheRunningDialogAlone)
{
    // Of the frame is not meant.
    EXPECT_MISUSE(guiSetDialogTitle("Frame"), "SetDialogTitle: no dialog");
    EXPECT_MISUSE(guiSetDialogTitle(nullptr), "SetDialogTitle: no dialog");
    EXPECT_EQ(wm::nameOf(app.shell()), "Kite");

    // Of a dialog under construction is not meant.
    buildDialog("Built");
    EXPECT_MISUSE(guiSetDialogTitle("Other"), "SetDialogTitle: no dialog");
    runWhileShown([](Shown outer) {
        expectTitle(outer, "Built");
        buildDialog("Inner");
        guiSetDialogTitle("Outer");
        expectTitle(outer, "Outer");
        runWhileShown([&](Shown inner) {
            expectTitle(inner, "Inner");
            guiSetDialogTitle("Innermost");
            expectTitle(inner, "Innermost");
            expectTitle(outer, "Outer");
        });
    });
}

GUI_STARTUP_TEST(DialogTitle, WithoutAnyWindowNothingHappens)
{
    guiSetDialogTitle("Too early");
    app.init();
    Widget const main = guiGetTopWnd();
    guiSetTopWnd(nullptr);
    guiSetDialogTitle("Nothing");
    guiSetTopWnd(main);
    EXPECT_FALSE(findWidget("v_errorbox"));
}
