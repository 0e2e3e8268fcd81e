#include "output/html_attribute.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

using kite::GetAttribute;

namespace {

struct Found {
    int result;
    std::string value;  // up to what the buffer was filled with
};

// Bytes that the call leaves alone are '#'.
Found attribute(const char* tag, const char* name)
{
    char value[kite::kAttributeValueSize + 1];
    std::memset(value, '#', sizeof value);
    value[kite::kAttributeValueSize] = '\0';
    const int result = GetAttribute(tag, name, value);
    const std::string filled{value, sizeof value - 1};
    return {result, filled.substr(0, filled.find('#', 1))};
}

const std::string kCleared(1, '\0');

}  // namespace

TEST(HtmlAttribute, Rule)
{
    struct {
        const char* tag;
        const char* name;
        int result;
        std::string value;
    } const rows[] = {
        {"<body wrap=on>", "wrap", 1, "on"},
        {"<body wrap = on>", "wrap", 1, "on"},
        {"<body wrap   =   \"on off\">", "wrap", 1, "on off"},
        {"<body wrap='o\"n'>", "wrap", 1, "o\"n"},
        {"<body wrap=\"no end", "wrap", 1, "no end"},
        {"<body wrap=\"\">", "wrap", 1, kCleared},
        {"<body wrap=>", "wrap", 1, kCleared},
        {"<body wrap=", "wrap", 1, kCleared},
        {"<body wrap= ", "wrap", 1, kCleared},
        {"<body wrap>", "wrap", 1, kCleared},
        {"<body wrap", "wrap", 1, kCleared},
        {"<body w", "wrap", 1, kCleared},
        {"<body wr", "wrap", 1, kCleared},
        {"<body>", "wrap", 0, kCleared},
        {"", "wrap", 0, kCleared},
        {"<body readonly=a-B9_c>", "readonly", 1, "a-B9"},
        {"<body READONLY>", "readonly", 0, kCleared},  // the letter's case counts
        {"<body wxyz=1>", "wrap", 1, "1"},             // no other letter does
        {"<body><p>now we go", "wrap", 1, kCleared},   // it need not be in the tag
        {"<body wrap=on> <i x='w123 = no'>", "wrap", 1, "no"},
        {"<body wrap=on>w", "wrap", 1, kCleared},            // the last one counts
        {"<body readonly\t=x>", "readonly", 1, kCleared},    // a tab is no blank
        {"<body readonly=\xE4x>", "readonly", 1, kCleared},  // no letter here
    };
    for (const auto& row : rows) {
        const Found found = attribute(row.tag, row.name);
        EXPECT_EQ(found.result, row.result) << row.tag;
        EXPECT_EQ(found.value, row.value) << row.tag;
    }
}

TEST(HtmlAttribute, ValueHasNoNullBehindIt)
{
    char value[kite::kAttributeValueSize] = "false";
    EXPECT_EQ(GetAttribute("<body wrap=xy>", "wrap", value), 1);
    EXPECT_STREQ(value, "xylse");
    EXPECT_EQ(GetAttribute("<body>", "wrap", value), 0);
    EXPECT_EQ(value[0], '\0');
    EXPECT_STREQ(value + 1, "ylse");
}

TEST(HtmlAttribute, ValueStaysInItsBuffer)
{
    const std::string tag = "<body wrap='" + std::string(1000, 'v') + "'>";
    const Found found = attribute(tag.c_str(), "wrap");
    EXPECT_EQ(found.result, 1);
    EXPECT_EQ(found.value, std::string(kite::kAttributeValueSize, 'v'));
}

TEST(HtmlAttribute, WithoutANameIsAbsent)
{
    EXPECT_EQ(attribute("<body =1>", "").result, 0);
}
