// bmp_rle_test.cpp: run-length encoded pixels.

#include <gmock/gmock.h>

#include "decoded.h"

using namespace kite::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

using Rows = std::vector<std::vector<int>>;

constexpr int kNo = -1;  // an undrawn pixel

std::string bytesOf(const std::vector<int>& values)
{
    std::string bytes;
    for (const int value : values) bytes += static_cast<char>(value);
    return bytes;
}

std::optional<Decoded> runs(int bits, int width, int height, const std::vector<int>& values)
{
    return decode(BmpFile::inRuns(bits, {{}}, width, height, bytesOf(values)).bytes());
}

struct RunCase {
    const char* what;
    int bits;
    int width;
    int height;
    std::vector<int> values;
    Rows expected;  // an empty row: nothing of it was drawn
};

const RunCase kRunCases[] = {
    {"nothing drawn", 8, 2, 2, {0, 1}, {{}, {}}},
    {"an encoded run", 8, 4, 1, {3, 7, 0, 1}, {{7, 7, 7, kNo}}},
    {"the longest run", 8, 3, 1, {255, 7, 0, 1}, {{7, 7, 7}}},
    {"nibbles in turn", 4, 6, 1, {5, 0x12, 0, 1}, {{1, 2, 1, 2, 1, kNo}}},
    {"a run of one nibble", 4, 2, 1, {1, 0x12, 0, 1}, {{1, kNo}}},
    {"nibbles cut at the edge", 4, 3, 1, {4, 0x12, 0, 1}, {{1, 2, 1}}},
    {"runs side by side", 8, 4, 1, {1, 5, 2, 6, 0, 1}, {{5, 6, 6, kNo}}},
    {"rows go up", 8, 1, 2, {1, 5, 0, 0, 1, 6, 0, 1}, {{6}, {5}}},
    {"an end of line takes x back", 8, 2, 2, {2, 5, 0, 0, 1, 6, 0, 1}, {{6, kNo}, {5, 5}}},
    {"several ends of line", 8, 1, 3, {1, 5, 0, 0, 0, 0, 1, 6, 0, 1}, {{6}, {}, {5}}},
    {"a delta to the right", 8, 4, 1, {1, 5, 0, 2, 2, 0, 1, 6, 0, 1}, {{5, kNo, kNo, 6}}},
    {"a delta up", 8, 3, 3, {1, 5, 0, 2, 1, 2, 1, 6, 0, 1}, {{kNo, kNo, 6}, {}, {5, kNo, kNo}}},
    {"a delta of nothing", 8, 2, 1, {1, 5, 0, 2, 0, 0, 1, 6, 0, 1}, {{5, 6}}},
    {"an absolute run", 8, 4, 1, {0, 4, 1, 2, 3, 4, 0, 1}, {{1, 2, 3, 4}}},
    {"an odd absolute run is padded", 8, 4, 1, {0, 3, 1, 2, 3, 99, 1, 4, 0, 1}, {{1, 2, 3, 4}}},
    {"3 nibbles are padded", 4, 4, 1, {0, 3, 0x12, 0x3F, 99, 1, 0x40, 0, 1}, {{1, 2, 3, 4}}},
    {"4 nibbles are not", 4, 5, 1, {0, 4, 0x12, 0x34, 1, 0x50, 0, 1}, {{1, 2, 3, 4, 5}}},
    {"5 nibbles are", 4, 6, 1, {0, 5, 0x12, 0x34, 0x5F, 99, 1, 0x60, 0, 1}, {{1, 2, 3, 4, 5, 6}}},
    {"6 nibbles are",
     4,
     7,
     1,
     {0, 6, 0x12, 0x34, 0x56, 99, 1, 0x70, 0, 1},
     {{1, 2, 3, 4, 5, 6, 7}}},
    {"7 nibbles are, behind a whole word",
     4,
     8,
     1,
     {0, 7, 0x12, 0x34, 0x56, 0x7F, 99, 1, 0x80, 0, 1},
     {{1, 2, 3, 4, 5, 6, 7, 8}}},
    {"8 nibbles are not",
     4,
     9,
     1,
     {0, 8, 0x12, 0x34, 0x56, 0x78, 1, 0x90, 0, 1},
     {{1, 2, 3, 4, 5, 6, 7, 8, 9}}},
    {"what is beyond the right edge is dropped",
     8,
     2,
     2,
     {3, 5, 1, 6, 0, 3, 7, 7, 7, 0, 0, 0, 1, 8, 0, 1},
     {{8, kNo}, {5, 5}}},
    {"an absolute run across the edge", 8, 2, 1, {0, 4, 1, 2, 3, 4, 0, 1}, {{1, 2}}},
    {"what is above the top is dropped", 8, 1, 1, {1, 5, 0, 0, 1, 6, 0, 0, 1, 7, 0, 1}, {{5}}},
    {"a delta beyond the top", 8, 1, 1, {1, 5, 0, 2, 0, 255, 1, 6, 0, 1}, {{5}}},
    {"a delta beyond the edge", 8, 2, 2, {0, 2, 255, 0, 1, 6, 0, 0, 1, 5, 0, 1}, {{5, kNo}, {}}},
    {"bytes behind the end", 8, 1, 1, {1, 5, 0, 1, 1, 6}, {{5}}},
};

}  // namespace

TEST(BmpRuns, AreDrawn)
{
    for (const RunCase& row : kRunCases) {
        const auto decoded = runs(row.bits, row.width, row.height, row.values);
        ASSERT_TRUE(decoded) << row.what;
        EXPECT_EQ(decoded->rows(), row.expected) << row.what;
    }
}

TEST(BmpRuns, GiveEachRowOnceFromTheBottom)
{
    const auto decoded =
        runs(8, 1, 5, {1, 5, 0, 0, 0, 2, 0, 2, 1, 6, 0, 0, 1, 7, 0, 0, 1, 8, 0, 1});
    ASSERT_TRUE(decoded);
    EXPECT_THAT(decoded->order, ElementsAre(4, 1, 0));
}

// Wherever the file ends: there is no picture, whatever was drawn before.
TEST(BmpRuns, AreRefusedWhenTheFileEndsBeforeTheEscape)
{
    for (const RunCase& row : kRunCases) {
        std::vector<int> values = row.values;
        if (values[values.size() - 2] != 0 || values.back() != 1) continue;  // bytes behind the end
        while (!values.empty()) {
            values.pop_back();
            EXPECT_FALSE(runs(row.bits, row.width, row.height, values))
                << row.what << ", " << values.size() << " bytes";
        }
    }
    EXPECT_FALSE(runs(8, 1, 1, {1, 5, 0, 0}));
}

// Far beyond what an int can count, in either direction.
TEST(BmpRuns, MayLeadAnyDistanceAway)
{
    std::string away;
    for (int i = 0; i < 9'000'000; ++i) away += "\xFF\x05";  // 2.3 thousand million to the right
    const std::string end("\x00\x00\x01\x06\x00\x01", 6);
    auto decoded = decode(BmpFile::inRuns(8, {{}}, 2, 2, away + end).bytes());
    ASSERT_TRUE(decoded);
    EXPECT_EQ(decoded->rows(), (Rows{{6, kNo}, {5, 5}}));
    away.clear();
    for (int i = 0; i < 9'000'000; ++i) away += std::string("\x00\x02\x00\xFF", 4);
    decoded = decode(BmpFile::inRuns(8, {{}}, 2, 2, away + end).bytes());
    ASSERT_TRUE(decoded);
    EXPECT_THAT(decoded->order, IsEmpty());
}

TEST(BmpRuns, AreTheSameInPiecesOfAnySize)
{
    for (const RunCase& row : kRunCases) {
        const std::string bytes =
            BmpFile::inRuns(row.bits, {{}}, row.width, row.height, bytesOf(row.values)).bytes();
        for (std::size_t piece = 1; piece <= 8; ++piece)
            EXPECT_EQ(decode(bytes, piece)->rows(), row.expected) << row.what << ", " << piece;
    }
}
