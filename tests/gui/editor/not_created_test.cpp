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
    app.run([&] {
        guiSetTopWnd(nullptr);
        expectNone();
        guiSetTopWnd(app.find("v_mainwnd"));
    });
    expectNone();
}
