// The text that the host puts in line by line, and reads back line by line.

#include "editor_support.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

GUI_STARTUP_TEST(EditorLines, NeedNoFrame)
{
    EXPECT_EQ(nextEditorLine(), "[-1]");
    EXPECT_EQ(guiEditorPutLine("abc"), 3);
    EXPECT_EQ(guiEditorPutLine(""), 0);
    EXPECT_EQ(guiEditorPutLine(nullptr), -1) << "without a message";
    EXPECT_EQ(guiEditorPutLine("two\nlines"), 9);
    EXPECT_THAT(editorLines(), ElementsAre("abc", "", "two", "lines"));
    EXPECT_EQ(nextEditorLine(), "[-1]");

    // What is not read is gone with a reset, and only with that.
    fillEditor({"a", "b", "c"});
    EXPECT_EQ(nextEditorLine(), "a");
    EXPECT_EQ(guiEditorPutLine("d"), 1);
    EXPECT_EQ(nextEditorLine(), "b");
    EXPECT_EQ(guiEditorReset(), 0);
    EXPECT_EQ(nextEditorLine(), "[-1]");
    EXPECT_EQ(guiEditorReset(), 0);
    fillEditor({"e"});
    EXPECT_THAT(editorLines(), ElementsAre("e"));
}

GUI_TEST(EditorLines, AreThoseThatTheUserHasLeft)
{
    // Are those that the user has left.
    {
        struct {
            std::string text;
            int count;
            std::vector<std::string> lines;
        } const rows[] = {
            {"", 0, {}},
            {"x", 1, {"x"}},
            {"\n", 1, {""}},
            {"x\n", 1, {"x"}},
            {"one\ntwo", 2, {"one", "two"}},
            {"one\ntwo\n", 2, {"one", "two"}},
            {"one\n\n", 2, {"one", ""}},
            {"\n\n\n", 3, {"", "", ""}},
            {"one\r\ntwo\r\n", 2, {"one", "two"}},
            {"\rx\r\ry\r", 1, {"xy"}},
            {"x\n\r", 2, {"x", ""}},
            {"a\tb\n ", 2, {"a\tb", " "}},
            {std::string(10000, 'x') + "\ny",
             2,
             {std::string(4095, 'x'), std::string(4095, 'x'), std::string(1810, 'x'), "y"}},
        };
        for (const auto& row : rows) {
            SCOPED_TRACE(row.text.substr(0, 20));
            fillEditor({"before"});
            EXPECT_EQ(editAndAccept([&](Shown) { setEdited(row.text); }), row.count);
            EXPECT_EQ(editorLines(), row.lines);
            EXPECT_EQ(nextEditorLine(), "[-1]");
        }
    }

    // Are read in pieces that fit.
    {
        struct {
            std::string text;
            int size;
            std::vector<std::string> pieces;
        } const rows[] = {
            {"abc", 2, {"a", "b", "c"}},     {"abc", 3, {"ab", "c"}},   {"abc", 4, {"abc"}},
            {"abc\n", 3, {"ab", "c"}},       {"abc\n", 4, {"abc", ""}},  // what is left of the line
            {"abc\nd", 4, {"abc", "", "d"}}, {"ab\r", 3, {"ab", ""}},   {"a\rb\rc", 3, {"ab", "c"}},
            {"abc\nd", 5, {"abc", "d"}},     {"\n\n", 2, {"", ""}},
        };
        for (const auto& row : rows) {
            SCOPED_TRACE(row.text + " " + std::to_string(row.size));
            editAndAccept([&](Shown) { setEdited(row.text); });
            EXPECT_EQ(editorLines(row.size), row.pieces);
        }
    }

    // May be a megabyte.
    {
        std::vector<std::string> lines;
        for (int i = 0; i < 10000; ++i) lines.push_back(std::to_string(i) + std::string(99, 'x'));
        fillEditor(lines);
        EXPECT_EQ(editAndAccept([](Shown) {}), 10000);
        EXPECT_TRUE(editorLines() == lines);
    }
}

GUI_TEST(EditorLines, NeedABuffer)
{
    constexpr char kMessage[] = "EditorGetLine: invalid buffer";
    std::string buffer = "####";
    for (const bool isFull : {false, true}) {
        fillEditor({});
        if (isFull) fillEditor({"abc"});
        for (const int size : {1, 0, -1})
            EXPECT_MISUSE(guiEditorGetLine(buffer.data(), size), kMessage, -1);
        EXPECT_MISUSE(guiEditorGetLine(nullptr, 10), kMessage, -1);
    }
    EXPECT_EQ(buffer, "####");
    EXPECT_THAT(editorLines(), ElementsAre("abc")) << "nothing was read";
    EXPECT_EQ(guiEditorGetLine(buffer.data(), 4), -1);
    EXPECT_EQ(buffer, std::string("\0###", 4));
}
