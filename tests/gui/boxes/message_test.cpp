// The texts that boxes show.

#include "box_kinds.h"

#include <Xm/MessageB.h>

using namespace kite::testing;
using ::testing::StartsWith;

namespace {

std::string bytesFrom(int first, int last)
{
    std::string bytes;
    for (int byte = first; byte <= last; ++byte) bytes += static_cast<char>(byte);
    return bytes;
}

int lineCount(Widget label)
{
    auto const text = resource<XmString>(label, XmNlabelString);
    const int lines = XmStringLineCount(text);
    XmStringFree(text);
    return lines;
}

void expectShown(const std::string& text)
{
    for (const BoxKind& kind : allBoxes())
        whileShown(
            kind, [&](Shown box) { EXPECT_EQ(box.message(), text); }, text.c_str());
}

}  // namespace

GUI_TEST(BoxMessage, IsShown)
{
    expectShown("What a fine day!");
}

GUI_TEST(BoxMessage, MayBeEmpty)
{
    expectShown("");
}

GUI_TEST(BoxMessage, IsEmptyForNull)
{
    for (const BoxKind& kind : allBoxes())
        whileShown(
            kind, [](Shown box) { EXPECT_EQ(box.message(), ""); }, nullptr);
}

GUI_TEST(BoxMessage, IsNoFormat)
{
    expectShown("100 % of %s and %n, \\n & more: &File");
}

GUI_TEST(BoxMessage, KeepsBytesBeyondAscii)
{
    expectShown(bytesFrom(0x80, 0xFF));
}

GUI_TEST(BoxMessage, KeepsAllPrintableAscii)
{
    expectShown(bytesFrom(0x20, 0x7E));
}

GUI_TEST(BoxMessage, HoldsSeveralLines)
{
    expectShown("first\nsecond");
    expectShown("first\n\nthird\nfourth");
    expectShown("\nsecond");
}

GUI_TEST(BoxMessage, LinesStandBelowEachOther)
{
    for (const BoxKind& kind : allBoxes()) {
        int heights[3] = {};
        const char* const texts[3] = {"one", "one\ntwo", "one\ntwo\nthree"};
        for (int i = 0; i < 3; ++i)
            whileShown(
                kind,
                [&](Shown box) {
                    EXPECT_EQ(lineCount(messageLabelOf(box.widget())), i + 1);
                    heights[i] = rectOf(messageLabelOf(box.widget())).height;
                },
                texts[i]);
        // The picture beside a message is higher than its first lines may be.
        EXPECT_LT(heights[0], heights[2]) << kind.call;
        EXPECT_LE(heights[0], heights[1]) << kind.call;
        EXPECT_LE(heights[1], heights[2]) << kind.call;
    }
}

GUI_TEST(BoxMessage, ErrorOfTwoLinesStandsUnderKiteError)
{
    whileShown(
        boxKind("guiErrorBox"),
        [](Shown box) {
            EXPECT_EQ(box.title(), "Kite Error");
            EXPECT_EQ(lineCount(messageLabelOf(box.widget())), 2);
            EXPECT_EQ(box.message(), "The disk is full.\nNothing was saved.");
        },
        "The disk is full.\nNothing was saved.");
}

// No screen shows all of it; the box can be answered all the same.
GUI_TEST(BoxMessage, MayBeOneLineOfAHundredKilobytes)
{
    const std::string text(100 * 1024, 'x');
    for (const BoxKind& kind : allBoxes()) {
        const int answer = whileShown(
            kind, [&](Shown box) { EXPECT_THAT(box.message(), StartsWith(text.substr(0, 60000))); },
            text.c_str());
        EXPECT_EQ(answer, kind.choices.front().answer);
    }
}

GUI_TEST(BoxMessage, MayBeAHundredKilobytesOfLines)
{
    std::string text;
    while (text.size() < 100 * 1024) text += "One more line of a long, long story.\n";
    for (const BoxKind& kind : allBoxes()) {
        const int answer = whileShown(
            kind, [&](Shown box) { EXPECT_THAT(box.message(), StartsWith(text.substr(0, 60000))); },
            text.c_str());
        EXPECT_EQ(answer, kind.choices.front().answer);
    }
}

GUI_TEST(BoxMessage, MayChangeInTheHostWhileItIsShown)
{
    std::string text = "before";
    whileShown(
        boxKind("guiInfoBox"),
        [&](Shown box) {
            text = "after!";
            EXPECT_EQ(box.message(), "before");
        },
        text.c_str());
}
