#include "toolkit/text_positions.h"

#include <gtest/gtest.h>

#include <clocale>

using kite::byteAt;
using kite::positionsIn;

namespace {

constexpr char kText[] = "a\xC3\xA4o\xE2\x82\xAC";  // a, ä, o, €

class InLocale {
public:
    explicit InLocale(const char* name) : isSet(std::setlocale(LC_CTYPE, name) != nullptr) {}
    ~InLocale() { std::setlocale(LC_CTYPE, "C"); }

    const bool isSet;
};

}  // namespace

TEST(TextPositions, AreBytesAsARule)
{
    EXPECT_EQ(positionsIn(""), 0);
    EXPECT_EQ(positionsIn(kText), 7);
    struct {
        long position;
        std::size_t byte;
    } const rows[] = {{-1, 0}, {0, 0}, {3, 3}, {7, 7}, {8, 7}, {1000000, 7}};
    for (const auto& row : rows) EXPECT_EQ(byteAt(kText, row.position), row.byte) << row.position;
}

TEST(TextPositions, AreCharactersInALocaleWithLongOnes)
{
    const InLocale locale{"C.UTF-8"};
    ASSERT_TRUE(locale.isSet);
    EXPECT_EQ(positionsIn(""), 0);
    EXPECT_EQ(positionsIn(kText), 4);
    EXPECT_EQ(positionsIn("\xFFx"), 2) << "a byte that is no character takes one";
    struct {
        long position;
        std::size_t byte;
    } const rows[] = {{-1, 0}, {0, 0}, {1, 1}, {2, 3}, {3, 4}, {4, 7}, {5, 7}};
    for (const auto& row : rows) EXPECT_EQ(byteAt(kText, row.position), row.byte) << row.position;
}
