// guiGetTop, guiSetTop, guiGetPos and guiSetPos on multi-line texts.

#include <climits>

#include <Xm/Text.h>

#include "dialog_plan.h"
#include "hand_made_controls.h"

using namespace kite::testing;

namespace {

// A text on the screen, while the Output area has that many lines.
void withText(const std::string& lines, int outputLines, const std::function<void(Widget)>& body)
{
    while (guiOutputLineCount() < outputLines) guiWriteLine("output");
    ASSERT_EQ(guiOutputLineCount(), outputLines);
    runDialog({.fill = [&] { makeText(MultiLine, lines); },
               .look = [&](Shown) { body(innerOf(MultiLine)); }});
}

long startOf(const std::string& lines, int line)
{
    std::size_t start = 0;
    for (int i = 0; i < line; ++i) start = lines.find('\n', start) + 1;
    return static_cast<long>(start);
}

long caretOf(Widget text)
{
    return XmTextGetInsertionPosition(text);
}

bool isVisible(Widget text, long position)
{
    Position x = 0;
    Position y = 0;
    return XmTextPosToXY(text, position, &x, &y);
}

}  // namespace

GUI_TEST(TextLines, TopCountsFromZeroAndPositionFromOne)
{
    const std::string lines = numberedLines(30);
    withText(lines, 40, [&](Widget text) {
        EXPECT_EQ(guiGetTop(MultiLine), 0);
        EXPECT_EQ(guiGetPos(MultiLine), 1);
        for (const int line : {3, 12, 0, 1}) {
            XmTextSetTopCharacter(text, startOf(lines, line));
            EXPECT_EQ(guiGetTop(MultiLine), line);
            EXPECT_EQ(guiGetPos(MultiLine), line + 1);
        }
    });
}

GUI_TEST(TextLines, AnEmptyTextIsAtZero)
{
    withText("", 5, [](Widget text) {
        EXPECT_EQ(guiGetTop(MultiLine), 0);
        EXPECT_EQ(guiGetPos(MultiLine), 0);
        guiSetTop(MultiLine, 1);
        guiSetPos(MultiLine, 1);
        EXPECT_EQ(caretOf(text), 0);
        EXPECT_EQ(guiGetTop(MultiLine), 0);
    });
}

GUI_TEST(TextLines, SetTopPutsTheLineOnTopAndTheCaretThere)
{
    const std::string lines = numberedLines(30);
    withText(lines, 40, [&](Widget text) {
        for (const int line : {4, 17, 0, 9}) {
            guiSetTop(MultiLine, line);
            EXPECT_EQ(guiGetTop(MultiLine), line);
            EXPECT_EQ(caretOf(text), startOf(lines, line));
        }
    });
}

GUI_TEST(TextLines, SetPosPutsTheCaretThereAndTheLineInView)
{
    const std::string lines = numberedLines(30);
    withText(lines, 40, [&](Widget text) {
        XmTextSetSelection(text, 2, 20, XtLastTimestampProcessed(XtDisplay(text)));
        guiSetPos(MultiLine, 1);
        EXPECT_EQ(caretOf(text), startOf(lines, 1));
        EXPECT_EQ(guiGetTop(MultiLine), 0) << "it is in view: nothing scrolls";
        EXPECT_EQ(guiGetTextLen(MultiLine), 0) << "nothing is selected any more";
        for (const int line : {20, 5, 29, 0}) {
            guiSetPos(MultiLine, line);
            EXPECT_EQ(caretOf(text), startOf(lines, line));
            EXPECT_TRUE(isVisible(text, startOf(lines, line))) << line;
        }
    });
}

GUI_TEST(TextLines, TheBoundIsTheOutputAreas)
{
    const std::string lines = numberedLines(30);
    withText(lines, 10, [&](Widget text) {
        guiSetTop(MultiLine, 10);
        EXPECT_EQ(guiGetTop(MultiLine), 10);
        guiSetPos(MultiLine, 2);
        guiSetPos(MultiLine, 10);
        const long caret = startOf(lines, 10);
        const int top = guiGetTop(MultiLine);
        EXPECT_EQ(caretOf(text), caret);
        for (const int line : {11, 29, INT_MAX, -1, INT_MIN}) {
            guiSetTop(MultiLine, line);
            guiSetPos(MultiLine, line);
            EXPECT_EQ(guiGetTop(MultiLine), top) << line;
            EXPECT_EQ(caretOf(text), caret) << line;
        }
    });
}

GUI_TEST(TextLines, BehindTheLastLineIsTheEnd)
{
    const std::string lines = "one\ntwo\nthree";
    withText(lines, 40, [&](Widget text) {
        for (const int line : {3, 4, 40}) {
            XmTextSetInsertionPosition(text, 0);
            guiSetPos(MultiLine, line);
            EXPECT_EQ(caretOf(text), 13) << line;
            XmTextSetInsertionPosition(text, 0);
            guiSetTop(MultiLine, line);
            EXPECT_EQ(caretOf(text), 13) << line;
        }
        guiSetPos(MultiLine, 2);
        EXPECT_EQ(caretOf(text), 8);
    });
}
