// There is no memory for the text of the editor box.

#include "editor_support.h"
#include "no_heap.h"

using namespace kite::testing;
using ::testing::ElementsAre;

namespace {

// The messages of a box whose user presses OK when so many large pieces are left.
std::vector<std::string> messagesOfOk(int pieces)
{
    return errorsDuring([&] {
        std::unique_ptr<HeapEnds> heap;
        guiEditorReset();
        EXPECT_EQ(editAndAccept([&](Shown) {
                      setEdited(std::string(2 * kLargePiece, 'x'));
                      settle();
                      heap = std::make_unique<HeapEnds>(pieces);
                  }),
                  -1);
        EXPECT_TRUE(heap->wasMet());
    });
}

}  // namespace

GUI_TEST(EditorWithoutMemory, SaysSo)
{
    // Takes no line and keeps the others.
    {
        fillEditor({"one"});
        const std::string line(kLargePiece, 'x');
        {
            const HeapEnds heap;
            EXPECT_MISUSE(guiEditorPutLine(line.c_str()), "EditorPutLine: out of memory", -1);
            EXPECT_EQ(guiEditorPutLine("two"), 3);
        }
        EXPECT_EQ(guiEditorPutLine("three"), 5);
        EXPECT_THAT(editorLines(), ElementsAre("one", "two", "three"));
    }

    // Cannot give the text back.
    {
        EXPECT_THAT(messagesOfOk(0), ElementsAre("EditBox: cannot retrieve text"));
        EXPECT_EQ(nextEditorLine(), "[-1]");
        EXPECT_EQ(guiGetTopWnd(), app.find("v_mainwnd"));
        EXPECT_THAT(messagesOfOk(1), ElementsAre("EditBox: out of memory"));
        EXPECT_EQ(nextEditorLine(), "[-1]");
        EXPECT_FALSE(findWidget(kEditor));
    }
}
