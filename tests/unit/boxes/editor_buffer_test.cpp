#include "boxes/editor_buffer.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

using kite::EditorBuffer;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

std::vector<std::string> linesOf(EditorBuffer& buffer, int size)
{
    std::vector<std::string> lines;
    std::vector<char> line(static_cast<std::size_t>(size));
    while (buffer.hasText()) {
        const int length = buffer.read(line.data(), size);
        lines.emplace_back(line.data());
        EXPECT_EQ(lines.back().size(), static_cast<std::size_t>(length));
    }
    return lines;
}

}  // namespace

TEST(EditorBuffer, BeginsEmpty)
{
    EditorBuffer buffer;
    EXPECT_FALSE(buffer.hasText());
    EXPECT_EQ(buffer.text(), nullptr);
    EXPECT_EQ(buffer.lines(), 0);
    buffer.reset();
    EXPECT_FALSE(buffer.hasText());
}

TEST(EditorBuffer, AppendsLinesWithTheirEnds)
{
    EditorBuffer buffer;
    EXPECT_TRUE(buffer.append("one"));
    EXPECT_STREQ(buffer.text(), "one\n");
    EXPECT_TRUE(buffer.append(""));
    EXPECT_TRUE(buffer.append("three"));
    EXPECT_STREQ(buffer.text(), "one\n\nthree\n");
    EXPECT_EQ(buffer.lines(), 3);
    EXPECT_THAT(linesOf(buffer, 10), ElementsAre("one", "", "three"));
    EXPECT_FALSE(buffer.hasText());
}

// Around every size at which it grows.
TEST(EditorBuffer, GrowsWithWhatIsAppended)
{
    for (std::size_t length = 4080; length < 4110; ++length) {
        EditorBuffer buffer;
        std::string expected;
        for (const std::size_t size : {length, std::size_t{0}, std::size_t{4096}, length * 3}) {
            ASSERT_TRUE(buffer.append(std::string(size, 'x')));
            expected += std::string(size, 'x') + '\n';
            ASSERT_EQ(buffer.text(), expected);
        }
    }
}

TEST(EditorBuffer, CountsALastLineWithoutAnEnd)
{
    struct {
        const char* text;
        int lines;
    } const rows[] = {{"", 0},    {"x", 1},      {"\n", 1},   {"x\n", 1}, {"x\ny", 2},
                      {"\nx", 2}, {"x\ny\n", 2}, {"\n\n", 2}, {"\r", 1},  {"x\n\r", 2}};
    for (const auto& row : rows) {
        EditorBuffer buffer;
        ASSERT_TRUE(buffer.assign(row.text));
        EXPECT_EQ(buffer.lines(), row.lines) << ::testing::PrintToString(row.text);
        EXPECT_STREQ(buffer.text(), row.text);
    }
}

TEST(EditorBuffer, IsEmptyWhenItHasBeenReadToItsEnd)
{
    EditorBuffer buffer;
    buffer.assign("ab\nc");
    char line[4];
    EXPECT_EQ(buffer.read(line, 4), 2);
    EXPECT_TRUE(buffer.hasText());
    EXPECT_EQ(buffer.read(line, 4), 1);
    EXPECT_FALSE(buffer.hasText());

    // Also by a line that fills the buffer exactly.
    buffer.assign("abc");
    EXPECT_EQ(buffer.read(line, 4), 3);
    EXPECT_FALSE(buffer.hasText());
    buffer.assign("abc\n");
    EXPECT_THAT(linesOf(buffer, 4), ElementsAre("abc", ""));

    // An empty text has one line to read.
    buffer.assign("");
    EXPECT_THAT(linesOf(buffer, 4), ElementsAre(""));
}

TEST(EditorBuffer, IsReadFromTheBeginningAfterANewText)
{
    EditorBuffer buffer;
    char line[10];
    buffer.assign("one\ntwo");
    buffer.read(line, sizeof line);
    buffer.assign("three");
    EXPECT_THAT(linesOf(buffer, 10), ElementsAre("three"));
    buffer.append("four");
    buffer.append("five");
    buffer.read(line, sizeof line);
    buffer.append("six");
    EXPECT_THAT(linesOf(buffer, 10), ElementsAre("five", "six"));
    buffer.append("seven");
    EXPECT_THAT(linesOf(buffer, 10), ElementsAre("seven"));
    EXPECT_THAT(linesOf(buffer, 10), IsEmpty());
}

TEST(EditorBuffer, LeavesCarriageReturnsOut)
{
    EditorBuffer buffer;
    buffer.assign("\ra\r\nb\rc\r");
    EXPECT_THAT(linesOf(buffer, 10), ElementsAre("a", "bc"));
    buffer.assign("\r\n\r");
    EXPECT_THAT(linesOf(buffer, 10), ElementsAre("", ""));
    buffer.assign("a\rb\rc\r");
    EXPECT_THAT(linesOf(buffer, 3), ElementsAre("ab", "c"));
}
