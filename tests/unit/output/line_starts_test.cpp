#include "toolkit/line_starts.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

using kite::LineStarts;

namespace {

constexpr char kNoLine[] = "(none)";

std::string lineOf(const LineStarts& lines, int number)
{
    const auto line = lines.line(number);
    return line ? std::string{*line} : kNoLine;
}

}  // namespace

TEST(LineStarts, CountsLines)
{
    struct {
        const char* text;
        int count;
    } const rows[] = {{"", 0},       {"\n", 1},     {"a", 1},   {"a\n", 1},   {"a\nb", 2},
                      {"a\nb\n", 2}, {"\n\n\n", 3}, {"\na", 2}, {"a\n\n", 2}, {"\r\n", 1}};
    for (const auto& row : rows) EXPECT_EQ(LineStarts{row.text}.count(), row.count) << row.text;
    EXPECT_EQ(LineStarts{}.count(), 0);
}

TEST(LineStarts, GivesLinesWithoutTheirEnds)
{
    struct {
        const char* text;
        int number;
        const char* line;
    } const rows[] = {
        {"ab\ncd\n", 0, "ab"},
        {"ab\ncd\n", 1, "cd"},
        {"ab\ncd\n", 2, kNoLine},
        {"ab\ncd", 1, "cd"},
        {"ab\ncd", 2, kNoLine},
        {"ab\ncd", -1, kNoLine},
        {"", 0, kNoLine},
        {"\n", 0, ""},
        {"\n", 1, kNoLine},
        {"\n\nx", 1, ""},
        {"\n\nx", 2, "x"},
        {"a\r\nb", 0, "a\r"},
        {"ab", 2147483647, kNoLine},
        {"ab", -2147483647 - 1, kNoLine},
    };
    for (const auto& row : rows)
        EXPECT_EQ(lineOf(LineStarts{row.text}, row.number), row.line)
            << row.text << " line " << row.number;
    EXPECT_EQ(LineStarts{}.line(0), std::nullopt);
}

TEST(LineStarts, SkipsLineEnds)
{
    const LineStarts lines{"ab\ncd\ne"};
    EXPECT_EQ(lines.behindLineEnds(0), 0U);
    EXPECT_EQ(lines.behindLineEnds(1), 3U);
    EXPECT_EQ(lines.behindLineEnds(2), 6U);
    EXPECT_EQ(lines.behindLineEnds(3), 7U) << "the end of the text";
    EXPECT_EQ(LineStarts{"a\n"}.behindLineEnds(1), 2U);
    EXPECT_EQ(LineStarts{""}.behindLineEnds(0), 0U);
}

TEST(LineStarts, FindsLineAndColumn)
{
    const LineStarts lines{"ab\ncd\n"};
    struct {
        std::size_t position;
        int line, column;
    } const rows[] = {{0, 1, 0}, {1, 1, 1}, {2, 1, 2}, {3, 2, 0},
                      {5, 2, 2}, {6, 3, 0}, {7, 3, 0}, {1000, 3, 0}};
    for (const auto& row : rows) {
        EXPECT_EQ(lines.lineAt(row.position), row.line) << row.position;
        EXPECT_EQ(lines.columnAt(row.position), row.column) << row.position;
    }
}

TEST(LineStarts, TakesAllBytes)
{
    std::string text;
    for (int byte = 1; byte < 256; ++byte) text += static_cast<char>(byte);
    const LineStarts lines{text};
    EXPECT_EQ(lines.count(), 2);
    EXPECT_EQ(lineOf(lines, 0).size(), 9U);
    EXPECT_EQ(lineOf(lines, 1).size(), 245U);
}

// Against the plainest way to say the same.
TEST(LineStarts, AgreesWithAWalkOverTheText)
{
    std::mt19937 random{1};
    for (int round = 0; round < 200; ++round) {
        std::string text(random() % 40, 'x');
        for (char& byte : text)
            if (random() % 3 == 0) byte = '\n';
        const LineStarts lines{text};
        int line = 1;
        int column = 0;
        for (std::size_t position = 0; position <= text.size(); ++position) {
            ASSERT_EQ(lines.lineAt(position), line) << text;
            ASSERT_EQ(lines.columnAt(position), column) << text;
            if (position == text.size()) break;
            const bool isEnd = text[position] == '\n';
            line += isEnd ? 1 : 0;
            column = isEnd ? 0 : column + 1;
        }
        EXPECT_EQ(lines.count(), line - (text.empty() || text.back() == '\n' ? 1 : 0)) << text;
    }
}
