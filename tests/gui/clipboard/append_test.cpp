// Lines that are appended to what is on the clipboard.

#include "clipboard_support.h"

using namespace kite::testing;

GUI_TEST(ClipboardAppend, KeepsWhatIsThere)
{
    // Puts a line behind what is there.
    {
        // Nothing is there.
        guiCopyAppText("first");
        EXPECT_EQ(pastedByXclip(), "first\n");
        EXPECT_EQ(guiClipLines(), 1);

        // Lines of our own.
        guiCopyText("a");
        guiCopyAppText("b");
        EXPECT_EQ(pastedByXclip(), "a\nb\n");
        EXPECT_EQ(guiClipLines(), 2);
        EXPECT_EQ(clipLine(2), "b");
        guiCopyAppText("");
        EXPECT_EQ(pastedByXsel(), "a\nb\n\n");
        EXPECT_EQ(guiClipLines(), 3);
        EXPECT_TRUE(isClipboardFree());
    }

    // Takes the clipboard over.
    {
        struct {
            std::vector<std::string> client;
            std::string result;
        } const rows[] = {
            {{"own", "STRING", "abc"}, "abcx\n"},
            {{"own", "STRING", "abc\n"}, "abc\nx\n"},
            {{"own", "STRING", "abc", "COMPOUND_TEXT", "def"}, "abcx\n"},
            {{"own", "COMPOUND_TEXT", "def"}, "defx\n"},
            {{"own", "COMPOUND_TEXT", "\x1b%/1\xe9"}, "\x1b%/1\xe9x\n"},  // as it is, unconverted
            {{"own", "STRING", "", "COMPOUND_TEXT", "def"}, "defx\n"},
            {{"own", "STRING", ""}, "x\n"},
            {{"own", "UTF8_STRING", "abc"}, "x\n"},
            {{"own"}, "x\n"},
            {{"motif", "abc"}, "abcx\n"},
        };
        for (const auto& row : rows) {
            SCOPED_TRACE(::testing::PrintToString(row.client));
            const Client client{row.client};
            const Window owner = clipboardOwner();
            guiCopyAppText("x");
            EXPECT_NE(clipboardOwner(), owner);
            EXPECT_EQ(pastedByXclip(), row.result);
            EXPECT_TRUE(isClipboardFree());
        }
    }
}
