// The editor box among other windows.

#include "editor_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;

GUI_TEST(EditorNesting, BelongsToTheWindowBeforeIt)
{
    // Boxes of handlers belong to it.
    {
        bool isTold = false;
        recorder.onEvent(GUI_EVENT_TIMER, [&] {
            guiTimer(0);
            guiInfoBox("The time is up.");
            isTold = true;
        });
        fillEditor({"one"});
        app.whenShown(kEditor, [&](Shown editor) {
            Widget const box = editor.widget();
            app.whenShown("v_infobox", [=](Shown note) {
                EXPECT_EQ(XtParent(note.shell()), box);
                note.click("OK");
            });
            guiTimer(100);
            EXPECT_TRUE(pumpUntil([&] { return isTold; }));
            EXPECT_MISUSE(guiEditorGetLine(nullptr, 5), "EditorGetLine: invalid buffer", -1);
            EXPECT_EQ(guiGetTopWnd(), editor.widget());
            guiWriteText("meanwhile");
            EXPECT_EQ(textOf(app.find("v_text")), "meanwhile");
            editor.click("OK");
        });
        EXPECT_EQ(guiEditorBox("Editor"), 1);
        EXPECT_THAT(editorLines(), ElementsAre("one"));
        recorder.forgetReactions();
    }

    // It belongs to the dialog that opens it.
    {
        ASSERT_EQ(guiDialog("Dialog"), 0);
        guiButton(2, 0, 0, 40, "Edit", 0);
        Widget dialog = nullptr;
        recorder.onEvent(GUI_EVENT_COMMAND, 2, [&] {
            fillEditor({"one"});
            EXPECT_EQ(
                editAndAccept([&](Shown editor) { EXPECT_EQ(XtParent(editor.shell()), dialog); }),
                1);
            EXPECT_EQ(guiGetTopWnd(), dialog);
            EXPECT_THAT(editorLines(), ElementsAre("one"));
            guiClose(3);
        });
        app.whenShown("v_dlgbbr", [&](Shown shown) {
            dialog = shown.widget();
            shown.click("Edit");
        });
        EXPECT_EQ(guiRunDialog(Recorder::dialogHandler()), 3);
        EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd"));
        recorder.forgetReactions();
    }

    // A box in a box: each gives back what was edited last.
    {
        fillEditor({"outer"});
        const int count = editAndAccept([](Shown outer) {
            fillEditor({"inner", "inner"});
            EXPECT_EQ(editAndAccept([&](Shown inner) {
                          EXPECT_EQ(XtParent(inner.shell()), outer.widget());
                          EXPECT_EQ(textOf(inner.child("v_mltext")), "inner\ninner\n");
                      }),
                      2);
            EXPECT_EQ(guiGetTopWnd(), outer.widget());
        });
        EXPECT_EQ(count, 1);
        EXPECT_THAT(editorLines(), ElementsAre("outer"));
    }
}
