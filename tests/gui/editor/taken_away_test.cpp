// Editor boxes that vanish while they wait: the user has given up then.

#include "editor_support.h"

using namespace kite::testing;

namespace {

void expectEndedBy(const std::function<void(Shown)>& end)
{
    Widget const top = guiGetTopWnd();
    fillEditor({"one"});
    Script::instance().whenShown(kEditor, end);
    EXPECT_EQ(guiEditorBox("Editor"), -1);
    EXPECT_EQ(guiGetTopWnd(), top);
    EXPECT_FALSE(findWidget(kEditor));
    EXPECT_EQ(nextEditorLine(), "[-1]");
}

}  // namespace

GUI_TEST(EditorTakenAway, EndsItWithoutAQuestion)
{
    // Ends it without a question.
    {
        expectEndedBy([](Shown box) { XtDestroyWidget(box.shell()); });
        expectEndedBy([](Shown box) { XtDestroyWidget(box.widget()); });
        expectEndedBy([](Shown) { guiClose(0); });

        // While it asks.
        expectEndedBy([&](Shown box) {
            app.whenShown("v_askbox", [=](Shown) { XtDestroyWidget(box.shell()); });
            box.click("Cancel");
        });
    }

    // With the dialog behind it.
    {
        ASSERT_EQ(guiDialog("Dialog"), 0);
        guiButton(2, 0, 0, 40, "Edit", 0);
        Widget dialog = nullptr;
        int result = 0;
        recorder.onEvent(GUI_EVENT_COMMAND, 2, [&] {
            fillEditor({"one"});
            result = guiEditorBox("Editor");
        });
        recorder.onEvent(GUI_EVENT_TIMER, [&] {
            guiTimer(0);
            XtDestroyWidget(shellOf(dialog));
        });
        app.whenShown("v_dlgbbr", [&](Shown shown) {
            dialog = shown.widget();
            shown.click("Edit");
        });
        app.whenShown(kEditor, [](Shown) { guiTimer(100); });
        EXPECT_EQ(guiRunDialog(Recorder::dialogHandler()), 0);
        EXPECT_EQ(result, -1);
        EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd"));
        EXPECT_EQ(nextEditorLine(), "[-1]");
    }
}

GUI_TEST(EditorTakenAway, WithTheFrameThatATimerCloses)
{
    recorder.onEvent(GUI_EVENT_TIMER, [] {
        guiSetTopWnd(findWidget("v_mainwnd"));
        guiClose(0);
    });
    fillEditor({"one"});
    app.whenShown(kEditor, [](Shown) { guiTimer(100); });
    EXPECT_EQ(guiEditorBox("Editor"), -1);
    EXPECT_FALSE(guiGetTopWnd());
    EXPECT_FALSE(app.shell());
    EXPECT_EQ(nextEditorLine(), "[-1]");
}
