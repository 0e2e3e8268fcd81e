// What the host reads from the Output area.

#include <climits>
#include <clocale>

#include "output_support.h"

using namespace kite::testing;

namespace {

struct Place {
    int line, column;

    bool operator==(const Place&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Place& place)
{
    return out << "line " << place.line << " column " << place.column;
}

Place place(int which)
{
    return {guiGetCurLine(which), guiGetCurPos(which)};
}

}  // namespace

GUI_TEST(OutputLineCount, CountsEndsAndAnOpenLine)
{
    struct {
        const char* text;
        int count;
    } const rows[] = {{"a\nb", 2}, {"a\nb\n", 2}, {"\n", 1}, {"", 0}, {"ab\ncd\n", 2}, {"a", 1}};
    for (const auto& row : rows) {
        setOutput(row.text);
        EXPECT_EQ(guiOutputLineCount(), row.count) << row.text;
    }
}

GUI_TEST(OutputLine, GivesLinesFromZero)
{
    setOutput("ab\ncd\n");
    EXPECT_EQ(line(0), "ab");
    EXPECT_EQ(line(1), "cd");
    EXPECT_EQ(line(2), "[-1]") << "the empty rest is no line";
    EXPECT_EQ(line(INT_MAX), "[-1]");
    EXPECT_EQ(line(-1), "[-1]");
    EXPECT_EQ(line(INT_MIN), "[-1]");
    setOutput("ab\n\ncd");
    EXPECT_EQ(line(1), "");
    EXPECT_EQ(line(2), "cd");
    setOutput("");
    EXPECT_EQ(line(0), "[-1]");
    setOutput("\xE4\xFF\x01");
    EXPECT_EQ(line(0), "\xE4\xFF\x01");
}

GUI_TEST(OutputLine, CopiesWhatFits)
{
    setOutput("ab\ncd\n");
    char buffer[4];
    const auto fetch = [&](int number, int size) {
        std::fill(std::begin(buffer), std::end(buffer), '#');
        const int result = guiOutputLine(number, buffer, size);
        return std::to_string(result) + " " + buffer;
    };
    EXPECT_EQ(fetch(0, 2), "1 a");
    EXPECT_EQ(buffer[2], '#');
    EXPECT_EQ(fetch(0, 3), "2 ab");
    EXPECT_EQ(buffer[3], '#');
    EXPECT_EQ(fetch(1, 4), "2 cd");
    EXPECT_EQ(fetch(1, INT_MAX), "2 cd");
    EXPECT_EQ(fetch(2, 4), "-1 ") << "an empty buffer";
    EXPECT_EQ(fetch(-1, 4), "-1 ");
}

GUI_TEST(OutputLine, NeedsABuffer)
{
    setOutput("ab");
    char buffer[] = "#";
    EXPECT_MISUSE(guiOutputLine(0, nullptr, 10), "GetLine: invalid buffer", -1);
    EXPECT_MISUSE(guiOutputLine(0, buffer, 1), "GetLine: invalid buffer", -1);
    EXPECT_MISUSE(guiOutputLine(-1, buffer, 0), "GetLine: invalid buffer", -1);
    EXPECT_MISUSE(guiOutputLine(0, buffer, INT_MIN), "GetLine: invalid buffer", -1);
    EXPECT_STREQ(buffer, "#") << "left alone";
    EXPECT_EQ(output(), "ab");
}

GUI_TEST(GetCur, MeasuresTheInsertionPoint)
{
    setOutput("ab\ncd");
    struct {
        XmTextPosition position;
        Place place;
    } const rows[] = {{0, {1, 0}}, {2, {1, 2}}, {3, {2, 0}}, {4, {2, 1}}, {5, {2, 2}}};
    for (const auto& row : rows) {
        XmTextSetInsertionPosition(outputText(), row.position);
        for (const int which : {0, 3, -1, INT_MIN, INT_MAX})
            EXPECT_EQ(place(which), row.place) << row.position << " " << which;
    }
    setOutput("ab\n");
    XmTextSetInsertionPosition(outputText(), 3);
    EXPECT_EQ(place(0), (Place{2, 0})) << "behind the last line end";
}

GUI_TEST(GetCur, MeasuresTheSelection)
{
    setOutput("ab\ncd\nef");
    selectOutput(1, 7);
    XmTextSetAddMode(outputText(), True);  // keeps the selection when the insertion point moves
    XmTextSetInsertionPosition(outputText(), 4);
    EXPECT_EQ(place(GUI_SELECTION_START), (Place{1, 1}));
    EXPECT_EQ(place(GUI_SELECTION_END), (Place{3, 1}));
    EXPECT_EQ(place(GUI_INSERTION_POINT), (Place{2, 1}));
}

GUI_TEST(GetCur, WithoutSelectionIsTheBeginning)
{
    setOutput("ab\ncd");
    XmTextSetInsertionPosition(outputText(), 4);
    EXPECT_EQ(place(GUI_SELECTION_START), (Place{1, 0}));
    EXPECT_EQ(place(GUI_SELECTION_END), (Place{1, 0}));
}

GUI_TEST(GetCur, OfAnEmptyAreaIsZero)
{
    setOutput("");
    for (const int which : {0, 1, 2, 3}) EXPECT_EQ(place(which), (Place{0, 0})) << which;
}

// The toolkit counts characters then; lines and columns stay bytes.
GUI_STARTUP_TEST(GetCur, CountsBytesInALocaleWithLongCharacters)
{
    ASSERT_TRUE(std::setlocale(LC_CTYPE, "C.UTF-8"));
    app.run([] {
        guiWriteText("\xC3\xA4\xC3\xB6\n\xE2\x82\xACuro");
        EXPECT_EQ(output(), "\xC3\xA4\xC3\xB6\n\xE2\x82\xACuro");
        EXPECT_EQ(insertionPoint(), XmTextGetLastPosition(outputText()));
        EXPECT_EQ(place(0), (Place{2, 6}));
        EXPECT_EQ(guiSelOutputLine(2, 3, 2), 1);
        EXPECT_EQ(outputSelection(), (Selected{4, 6}));
        EXPECT_EQ(place(1), (Place{2, 3}));
        EXPECT_EQ(guiSaveOutput("part.txt"), 0);
        EXPECT_EQ(contentsOf("part.txt"), "ur");
        guiWriteSel("\xC3\xBC");
        EXPECT_EQ(insertionPoint(), 5);
        EXPECT_EQ(line(1), "\xE2\x82\xAC\xC3\xBCo");
    });
}
