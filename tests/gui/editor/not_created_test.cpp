// Editor boxes that have no window to belong to: the text stays.

#include "editor_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;

namespace {

void expectNone()
{
    fillEditor({"one", "two"});
    EXPECT_EQ(guiEditorBox("Nobody"), -1);
    EXPECT_THAT(editorLines(), ElementsAre("one", "two"));
}

}  // namespace

GUI_STARTUP_TEST(EditorNotCreated, LeavesTheText)
{
    expectNone();
    app.run([] {});
    expectNone();
}

// Unlike other boxes it belongs to the frame when the host has taken the top window away.
GUI_TEST(EditorWithoutTopWindow, BelongsToTheShellOfTheFrame)
{
    Widget const frame = guiGetTopWnd();
    guiSetTopWnd(nullptr);
    fillEditor({"one"});
    app.whenShown("v_editorbox", [this](Shown box) {
        EXPECT_EQ(XtParent(box.shell()), app.shell());
        box.click("OK");
    });
    EXPECT_EQ(guiEditorBox("Frame"), 1);
    EXPECT_EQ(guiGetTopWnd(), nullptr);
    guiSetTopWnd(frame);
}
