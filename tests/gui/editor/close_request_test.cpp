// The close button that the window manager gives the editor box.

#include "editor_support.h"

using namespace kite::testing;

namespace {

Step answered(const char* button)
{
    return Script::instance().shown("v_askbox", [=](Shown question) {
        EXPECT_EQ(question.message(), "Exit the editor?");
        question.click(button);
    });
}

}  // namespace

GUI_TEST(EditorCloseButton, AsksAsCancelDoes)
{
    fillEditor({"one"});
    const auto close = [] { wm::close(shellOf(findWidget(kEditor))); };
    script.inOrder({script.shown(kEditor, [=](Shown) { close(); }),
                    answered("No"),
                    {"the editor is back", [] { return guiGetTopWnd() == findWidget(kEditor); },
                     [=] {
                         EXPECT_TRUE(isShown(findWidget(kEditor)));
                         EXPECT_EQ(edited(), "one\n");
                         close();
                     }},
                    answered("Yes")});
    EXPECT_EQ(guiEditorBox("Editor"), -1);
    EXPECT_EQ(nextEditorLine(), "[-1]");
}
