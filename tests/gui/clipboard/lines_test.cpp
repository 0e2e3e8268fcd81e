// Lines of the clipboard, counted and read.

#include "clipboard_support.h"

using namespace kite::testing;

namespace {

const std::string kUntouched(20, '#');

}  // namespace

GUI_TEST(ClipboardLine, IsCopiedAsTheBytesThatItIs)
{
    // Is copied with its line end and read without it.
    {
        guiCopyText("abc");
        EXPECT_EQ(guiClipLines(), 1);
        EXPECT_EQ(clipLine(1), "abc");
        EXPECT_EQ(clipLine(2), "[-1]");
        EXPECT_EQ(clipLine(0), "[-1]");
        EXPECT_EQ(pastedByXclip(), "abc\n");

        // It takes the place of what is there.
        guiCopyText("d");
        EXPECT_EQ(pastedByXclip(), "d\n");

        // An empty one is one too.
        guiCopyText("");
        EXPECT_EQ(guiClipLines(), 1);
        EXPECT_EQ(clipLine(1), "[0]");
        EXPECT_EQ(clipLine(2), "[-1]");
        EXPECT_EQ(pastedByXclip(), "\n");

        // One with line ends is several.
        guiCopyText("a\n\nb");
        EXPECT_EQ(guiClipLines(), 3);
        EXPECT_EQ(clipLine(2), "[0]");
        EXPECT_EQ(clipLine(3), "b");

        // Null changes nothing.
        guiCopyText(nullptr);
        guiCopyAppText(nullptr);
        EXPECT_EQ(pastedByXclip(), "a\n\nb\n");
        EXPECT_TRUE(isClipboardFree());
    }

    // Is the bytes that it is.
    {
        const std::string bytes = "\xe4\xc3\xa4\x01\xff";
        guiCopyText(bytes.c_str());
        EXPECT_EQ(pastedByXclip(), bytes + '\n');
        EXPECT_EQ(clipLine(1), bytes);
        guiCopyAppText(bytes.c_str());
        EXPECT_EQ(pastedByXclip(), bytes + '\n' + bytes + '\n');
    }
}

GUI_TEST(ClipboardLine, OfAnEmptyClipboardIsNone)
{
    EXPECT_EQ(clipboardOwner(), Window{None});
    const auto expectNone = [] {
        char buffer[] = "####";
        EXPECT_EQ(guiClipLines(), 0);
        EXPECT_EQ(guiPasteText(buffer, sizeof buffer, 1), 0);
        EXPECT_STREQ(buffer, "");
        EXPECT_EQ(clipLine(0), "[0]") << "what is not there has no wrong lines";
        EXPECT_EQ(clipLine(-1), "[-1]");
    };
    expectNone();
    guiCopyText("abc");
    const Client client{{"own"}};
    expectNone();
    EXPECT_TRUE(isClipboardFree());
}

GUI_TEST(ClipboardLine, CountsAndStartsByLineEnds)
{
    struct {
        std::string text;
        std::vector<std::string> lines;  // as clipLine names them
    } const rows[] = {
        {"x", {"x"}},
        {"\n", {"[0]"}},
        {"\n\n", {"[0]", "[0]"}},
        {"a\nb", {"a", "b"}},
        {"a\nb\n", {"a", "b"}},
        {"a\n\n", {"a", "[0]"}},
        {"\na", {"[0]", "a"}},
        {"a\r\nb\tc", {"a\r", "b\tc"}},
        {"one\ntwo\nthree", {"one", "two", "three"}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        const Client client{{"own", "STRING", row.text}};
        const int count = static_cast<int>(row.lines.size());
        EXPECT_EQ(guiClipLines(), count);
        for (int line = 1; line <= count; ++line)
            EXPECT_EQ(clipLine(line), row.lines[static_cast<std::size_t>(line - 1)]) << line;
        EXPECT_EQ(clipLine(count + 1), "[-1]");
        EXPECT_EQ(clipLine(0), "[-1]");
        EXPECT_EQ(clipLine(-1), "[-1]");
        EXPECT_EQ(clipLine(INT_MAX), "[-1]");
        EXPECT_EQ(clipLine(INT_MIN), "[-1]");
    }
}

GUI_TEST(ClipboardLine, IsReadIntoABuffer)
{
    // Is cut to the buffer.
    {
        guiCopyText("abcdef\nxyz");
        for (const int size : {2, 3, 6, 7, 8}) {
            std::string buffer = kUntouched;
            const std::string expected =
                std::string{"abcdef"}.substr(0, static_cast<std::size_t>(size - 1));
            EXPECT_EQ(guiPasteText(buffer.data(), size, 1), static_cast<int>(expected.size()));
            EXPECT_STREQ(buffer.c_str(), expected.c_str());
            EXPECT_EQ(buffer.substr(expected.size() + 1), kUntouched.substr(expected.size() + 1))
                << size;
        }
    }

    // Needs a buffer.
    {
        constexpr char kMessage[] = "GetClipLine: invalid buffer";
        std::string buffer = kUntouched;
        for (const bool isFull : {false, true}) {
            if (isFull) guiCopyText("abc");
            for (const int size : {1, 0, -1})
                EXPECT_MISUSE(guiPasteText(buffer.data(), size, 1), kMessage, -1);
            EXPECT_MISUSE(guiPasteText(nullptr, 10, 1), kMessage, -1);
            EXPECT_MISUSE(guiPasteText(nullptr, 10, -1), kMessage, -1);
            EXPECT_MISUSE(guiPasteText(buffer.data(), 1, -1), kMessage, -1);
        }
        EXPECT_EQ(buffer, kUntouched);

        // A line that there is not empties it.
        EXPECT_EQ(guiPasteText(buffer.data(), 20, -1), -1);
        EXPECT_EQ(buffer, '\0' + kUntouched.substr(1));
        buffer = kUntouched;
        EXPECT_EQ(guiPasteText(buffer.data(), 20, 2), -1);
        EXPECT_EQ(buffer, '\0' + kUntouched.substr(1));
    }
}
