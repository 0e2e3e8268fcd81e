#include "toolkit/host_buffer.h"

#include <gtest/gtest.h>

#include <array>
#include <climits>

TEST(HostBuffer, NeedsRoomForOneByteAndTheNull)
{
    char byte = 'x';
    EXPECT_FALSE(kite::isUsableBuffer(nullptr, 100));
    for (const int size : {INT_MIN, -1, 0, 1})
        EXPECT_FALSE(kite::isUsableBuffer(&byte, size)) << size;
    for (const int size : {2, INT_MAX}) EXPECT_TRUE(kite::isUsableBuffer(&byte, size)) << size;
}

TEST(HostBuffer, GetsWhatFitsAndIsTerminated)
{
    struct {
        int size;
        const char* text;
        const char* copied;
    } const rows[] = {
        {2, "", ""},       {2, "a", "a"},    {2, "ab", "a"},
        {4, "abc", "abc"}, {3, "abc", "ab"}, {8, "abc", "abc"},
    };
    for (const auto& row : rows) {
        std::array<char, 10> buffer;
        buffer.fill('#');
        const int length = kite::copyToBuffer(buffer.data(), row.size, row.text);
        EXPECT_STREQ(buffer.data(), row.copied);
        EXPECT_EQ(length, static_cast<int>(std::string_view{row.copied}.size()));
        EXPECT_EQ(buffer[static_cast<std::size_t>(row.size)], '#') << "wrote beyond the buffer";
    }
}
