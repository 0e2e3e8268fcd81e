// The selection of a text, copied and cut.

#include "clipboard_support.h"

#include "text_kinds.h"

using namespace kite::testing;

GUI_TEST(CopySelection, IsCopiedAndCut)
{
    // Puts it on the clipboard as it is.
    {
        withTexts([&](Widget text) {
            XmTextSetString(text, const_cast<char*>("one two"));
            select(text, 4, 6);
            guiCopySel(text);
            EXPECT_EQ(pastedByXclip(), "tw") << "no line end";
            EXPECT_EQ(guiClipLines(), 1);
            EXPECT_EQ(textOf(text), "one two");

            select(text, 0, 4);
            guiCutSel(text);
            EXPECT_EQ(pastedByXclip(), "one ");
            EXPECT_EQ(textOf(text), "two");
            EXPECT_TRUE(isClipboardFree());
        });
    }

    // Of several lines keeps them.
    {
        XmTextSetString(findWidget("v_text"), const_cast<char*>(""));
        guiWriteText("one\ntwo\nthree");
        Widget const output = app.find("v_text");
        select(output, 2, 9);
        guiCopySel(output);
        EXPECT_EQ(guiClipLines(), 3);
        EXPECT_EQ(clipLine(3), "t");
        guiCutSel(output);
        EXPECT_EQ(textOf(output), "onhree");
        EXPECT_EQ(guiOutputLineCount(), 1);
    }

    // Without one changes nothing.
    {
        guiCopyText("before");
        withTexts([&](Widget text) {
            XmTextSetString(text, const_cast<char*>("one two"));
            XmTextClearSelection(text, XtLastTimestampProcessed(XtDisplay(text)));
            guiCopySel(text);
            guiCutSel(text);
            EXPECT_EQ(textOf(text), "one two");
            EXPECT_EQ(pastedByXclip(), "before\n");
        });

        // Nor does what is no text.
        for (Widget const widget : {app.find("v_mainwnd"), Widget{}}) {
            guiCopySel(widget);
            guiCutSel(widget);
            guiPasteSel(widget);
        }
        EXPECT_EQ(pastedByXclip(), "before\n");
        EXPECT_TRUE(isClipboardFree());
    }
}
