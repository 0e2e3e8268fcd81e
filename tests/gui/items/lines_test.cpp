// The lines of a multi-line text, and what is selected in texts.

#include <Xm/Text.h>

#include <climits>

#include "items_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

Widget textIn(int id)
{
    Widget const inner = innerOf(id);
    return XmIsText(inner) ? inner : resource<Widget>(inner, XmNtextField);
}

}  // namespace

GUI_TEST(Lines, AreCountedByTheirEnds)
{
    struct {
        const char* text;
        int count;
    } const rows[] = {{"", 0},       {"a", 1},    {"\n", 1},  {"a\nb", 2},
                      {"a\nb\n", 2}, {"\n\n", 2}, {"\na", 2}, {"a\n\n\nb", 4}};
    withItemControls([&] {
        for (const auto& row : rows) {
            guiSetText(MultiLine, row.text);
            EXPECT_EQ(guiGetLineCount(MultiLine), row.count) << row.text;
        }
    });
}

GUI_TEST(Lines, AreReadOneByOneOrAllAtOnce)
{
    withItemControls([] {
        guiSetText(MultiLine, "abc\n\ndefg\n");
        EXPECT_EQ(line(MultiLine, 0), "abc");
        EXPECT_EQ(line(MultiLine, 1), "");
        EXPECT_EQ(line(MultiLine, 2), "defg");
        EXPECT_EQ(line(MultiLine, -1), "abc\n\ndefg\n");
        for (const int none : {INT_MIN, -2, 3, 4, INT_MAX}) EXPECT_EQ(line(MultiLine, none), "-1");
        guiRemoveAll(MultiLine);
        EXPECT_EQ(line(MultiLine, -1), "");
        EXPECT_EQ(line(MultiLine, 0), "-1");
    });
}

GUI_TEST(Lines, AreCutToTheBuffer)
{
    struct {
        int line, size;
        const char* text;
    } const rows[] = {{1, 2, "d"},    {1, 3, "de"},      {1, 4, "def"},        {1, 5, "defg"},
                      {1, 9, "defg"}, {-1, 6, "abc\nd"}, {-1, 9, "abc\ndefg"}, {-1, 2, "a"}};
    withItemControls([&] {
        guiSetText(MultiLine, "abc\ndefg");
        for (const auto& row : rows) {
            char buffer[12] = "###########";
            EXPECT_EQ(guiGetLine(MultiLine, row.line, buffer, row.size),
                      static_cast<int>(std::string_view{row.text}.size()));
            EXPECT_STREQ(buffer, row.text);
            EXPECT_EQ(buffer[row.size], '#');
        }
        char buffer[4] = "xyz";
        for (const int size : {1, 0, INT_MIN})
            EXPECT_MISUSE(guiGetLine(-1, 0, buffer, size), "GetLine: invalid buffer", -1);
        EXPECT_MISUSE(guiGetLine(MultiLine, 0, nullptr, 9), "GetLine: invalid buffer", -1);
        EXPECT_STREQ(buffer, "xyz");
        EXPECT_MISUSE(guiGetLine(Edit, -2, buffer, 4), "GetLine: unsuitable control type (id = 2)",
                      -1);
        EXPECT_STREQ(buffer, "");
    });
}

GUI_TEST(Lines, AreReadAnewAfterEveryChange)
{
    withItemControls([](Shown dialog) {
        guiSetText(MultiLine, "one");
        EXPECT_EQ(line(MultiLine, 0), "one");
        guiInsertText(MultiLine, "two ");
        EXPECT_EQ(line(MultiLine, 0), "two one");
        guiAppendLine(MultiLine, " three");
        EXPECT_EQ(line(MultiLine, 0), "two one three");
        guiAppendHTML(MultiLine, "four");
        EXPECT_EQ(line(MultiLine, 1), "four ");
        guiSetFocus(MultiLine);
        XmTextSetInsertionPosition(innerOf(MultiLine), 0);
        dialog.type("x");
        EXPECT_EQ(line(MultiLine, 0), "xtwo one three");
        guiSetText(MultiLine, "new");
        EXPECT_EQ(line(MultiLine, 0), "new");
        guiRemoveAll(MultiLine);
        EXPECT_EQ(guiGetLineCount(MultiLine), 0);
    });
}

GUI_TEST(AppendLine, KeepsTheInsertionPointAndAddsALineEnd)
{
    withItemControls([] {
        Widget const text = innerOf(MultiLine);
        guiAppendLine(MultiLine, "first");
        EXPECT_EQ(XmTextGetInsertionPosition(text), 0) << "also at the end";
        XmTextSetInsertionPosition(text, 3);
        guiAppendLine(MultiLine, nullptr);
        guiAppendLine(MultiLine, "two\nlines");
        EXPECT_EQ(textOf(text), "first\n\ntwo\nlines\n");
        EXPECT_EQ(XmTextGetInsertionPosition(text), 3);
    });
}

GUI_TEST(AppendHtml, ConvertsMarkupAtTheEnd)
{
    withItemControls([] {
        guiAppendHTML(MultiLine, "a&amp;b<br>c");
        EXPECT_EQ(textOf(innerOf(MultiLine)), "a&b\nc ");
        guiAppendHTML(MultiLine, nullptr);
        EXPECT_EQ(textOf(innerOf(MultiLine)), "a&b\nc  ");
    });
}

GUI_TEST(TextSelection, OfALineEndsAtItsLength)
{
    struct {
        const char* text;
        int line;
        const char* selection;
    } const rows[] = {
        {"abc\ndefg\n", 0, "0-3"},       // the line itself
        {"ab\nabcdef\nx", 1, "3-6"},     // from 3 to its length 6
        {"ab\ncd", 1, ""},               // its length 2 is before its beginning 3
        {"abc", 0, "0-3"},               // without a line end
        {"\nabc\nde", 0, "0-7"},         // an empty line: the length of the rest
        {"a\n\nabcdefgh\n", 1, "2-10"},  //
        {"abc\ndefg\n", 2, ""},          // behind the last line
    };
    withItemControls([&] {
        for (const auto& row : rows) {
            guiSetText(MultiLine, row.text);
            guiSelAll(MultiLine);
            guiClrAll(MultiLine);
            guiSetSel(MultiLine, row.line);
            EXPECT_EQ(selectionIn(innerOf(MultiLine)), row.selection) << row.text << row.line;
        }
    });
}

GUI_TEST(TextSelection, StaysForALineThatDoesNotExist)
{
    withItemControls([] {
        guiSetText(MultiLine, "abc\ndefg");
        guiSetSel(MultiLine, 0);
        for (const int none : {INT_MIN, -1, 2, 3, INT_MAX}) {
            guiSetSel(MultiLine, none);
            EXPECT_EQ(selectionIn(innerOf(MultiLine)), "0-3") << none;
        }
    });
}

GUI_TEST(TextSelection, OfAllAndOfNothing)
{
    withItemControls([] {
        for (const int id : {int{Edit}, int{MultiLine}}) {
            SCOPED_TRACE(id);
            guiSetText(id, "abcdef");
            guiSelAll(id);
            EXPECT_EQ(selectionIn(textIn(id)), "0-6");
            guiClrSel(id, 0);
            EXPECT_EQ(selectionIn(textIn(id)), "0-6") << "not by item";
            guiClrAll(id);
            EXPECT_EQ(selectionIn(textIn(id)), "");
            EXPECT_EQ(XmTextGetInsertionPosition(textIn(id)), 0);
        }
    });
}

GUI_TEST(TextSelection, OfFieldsIsFromTheInsertionPoint)
{
    struct {
        int from, index;
        const char* selection;
    } const rows[] = {
        {0, 3, "0-3"}, {1, 2, "1-2"}, {0, 0, ""}, {1, 99, "1-3"}, {1, INT_MAX, "1-3"}};
    withItemControls([&] {
        guiSetText(Edit, "100");
        guiSetText(Spin, "100");
        for (const int id : {int{Edit}, int{Spin}})
            for (const auto& row : rows) {
                SCOPED_TRACE(std::to_string(id) + ' ' + std::to_string(row.index));
                Widget const field =
                    id == Spin ? resource<Widget>(innerOf(Spin), XmNtextField) : innerOf(Edit);
                XmTextClearSelection(field, CurrentTime);
                XmTextSetInsertionPosition(field, row.from);
                guiSetSel(id, row.index);
                EXPECT_EQ(selectionIn(field), row.selection);
            }
    });
}
