// A megabyte on the clipboard.

#include "text_kinds.h"

using namespace kite::testing;

namespace {

constexpr std::size_t kLines = 10000;

// Lines of 100 bytes with their line ends.
std::string megabyte()
{
    std::string text;
    for (std::size_t line = 1; line <= kLines; ++line) {
        const std::string number = std::to_string(line);
        text += number + std::string(99 - number.size(), '.') + '\n';
    }
    return text;
}

}  // namespace

GUI_TEST(LargeClipboard, OfAnotherClientIsReadWhole)
{
    const std::string text = megabyte();
    const Owner owner{{"xclip", "-i", "-selection", "clipboard", "-quiet"}, text};
    EXPECT_EQ(guiClipLines(), static_cast<int>(kLines));
    EXPECT_EQ(clipLine(kLines).substr(0, 6), "10000.");
    EXPECT_EQ(clipLine(kLines + 1), "[-1]");

    Widget const output = app.find("v_text");
    guiPasteSel(output);
    EXPECT_TRUE(textOf(output) == text);

    guiCopyAppText("and one");
    EXPECT_TRUE(pastedByXclip() == text + "and one\n");
    EXPECT_EQ(guiClipLines(), static_cast<int>(kLines) + 1);
    EXPECT_EQ(clipLine(kLines + 1), "and one");
    EXPECT_TRUE(isClipboardFree());
}
