// What is too long to be copied stays where it is.

#include "clipboard_support.h"

using namespace kite::testing;

namespace {

std::string text(std::size_t length)
{
    return std::string(length, 'x');
}

}  // namespace

GUI_TEST(ClipboardLimit, Is4095Bytes)
{
    // Of a line is4095 bytes with its line end.
    {
        guiCopyText(text(4094).c_str());
        EXPECT_EQ(pastedByXclip(), text(4094) + '\n');
        guiCopyText("before");
        for (const std::size_t length : {4095, 4096, 100000}) guiCopyText(text(length).c_str());
        EXPECT_EQ(pastedByXclip(), "before\n");

        // The same where it is appended, however long the whole is.
        guiCopyAppText(text(4094).c_str());
        guiCopyAppText(text(4094).c_str());
        const std::string whole = "before\n" + text(4094) + '\n' + text(4094) + '\n';
        EXPECT_EQ(pastedByXclip(), whole);
        for (const std::size_t length : {4095, 4096, 100000}) guiCopyAppText(text(length).c_str());
        EXPECT_EQ(pastedByXclip(), whole);
        EXPECT_TRUE(isClipboardFree());
    }

    // Of a selection is4095 bytes.
    {
        Widget const output = app.find("v_text");
        guiWriteText((text(4095) + "yz").c_str());
        guiCopyText("before");
        for (const XmTextPosition length : {4096, 4097}) {
            select(output, 0, length);
            guiCopySel(output);
            guiCutSel(output);
            EXPECT_EQ(pastedByXclip(), "before\n");
            EXPECT_EQ(textOf(output), text(4095) + "yz") << "what could not be copied is not cut";
        }
        select(output, 0, 4095);
        guiCopySel(output);
        EXPECT_EQ(pastedByXclip(), text(4095));
        EXPECT_EQ(textOf(output), text(4095) + "yz");
        guiCopyText("before");
        guiCutSel(output);
        EXPECT_EQ(pastedByXclip(), text(4095));
        EXPECT_EQ(textOf(output), "yz");
    }
}
