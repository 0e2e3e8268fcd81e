// Without a frame there is no window to copy for.

#include "clipboard_support.h"

using namespace kite::testing;

namespace {

void expectNothing()
{
    char buffer[] = "####";
    guiCopyText("abc");
    guiCopyAppText("abc");
    EXPECT_EQ(guiClipLines(), 0);
    EXPECT_EQ(guiPasteText(buffer, sizeof buffer, 1), 0);
    EXPECT_STREQ(buffer, "");
    EXPECT_EQ(guiPasteText(buffer, sizeof buffer, -1), -1);
    EXPECT_EQ(guiPasteText(buffer, 1, 1), -1);
    guiCopySel(nullptr);
    guiCutSel(nullptr);
    guiPasteSel(nullptr);
}

}  // namespace

GUI_STARTUP_TEST(ClipboardWithoutFrame, IsEmpty)
{
    expectNothing();
    app.run([] { EXPECT_EQ(guiClipLines(), 0); });
    expectNothing();
}
