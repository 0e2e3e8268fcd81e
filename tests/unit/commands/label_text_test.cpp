// Labels and mnemonics of menu names.

#include "toolkit/label_text.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstring>
#include <string>

namespace {

using kite::parseLabel;

std::string stripped(std::string text, char c)
{
    kite::stripChar(text.data(), c);
    return text.c_str();
}

struct Name {
    const char* name;
    const char* label;
    char mnemonic;
};

}  // namespace

TEST(LabelText, OfTheFirstMark)
{
    constexpr Name kNames[] = {
        {"", "", 0},
        {"File", "File", 0},
        {"&File", "File", 'F'},
        {"E&xit", "Exit", 'x'},
        {"Page &2", "Page 2", '2'},
        {"Zoo&m", "Zoom", 'm'},
        {"Open&", "Open", 0},
        {"&", "", 0},
        {"&&", "", 0},
        {"&&File", "File", 0},
        {"Save && Exit", "Save  Exit", 0},
        {"&Save && E&xit", "Save  Exit", 'S'},
        {"& Save &Exit", " Save Exit", 0},
        {"&.Dot", ".Dot", 0},
        {"&\xC4rger", "\xC4rger", 0},
    };
    for (const Name& expected : kNames) {
        SCOPED_TRACE(expected.name);
        const kite::LabelText text = parseLabel(expected.name);
        EXPECT_EQ(text.label, expected.label);
        EXPECT_EQ(text.mnemonic, expected.mnemonic);
    }
}

TEST(LabelText, StripCharRemovesEveryOne)
{
    EXPECT_EQ(stripped("a&b&&c&", '&'), "abc");
    EXPECT_EQ(stripped("&&&", '&'), "");
    EXPECT_EQ(stripped("", '&'), "");
    EXPECT_EQ(stripped("none", '&'), "none");
    EXPECT_EQ(stripped("banana", 'a'), "bnn");
    EXPECT_EQ(stripped("stays", '\0'), "stays");
    kite::stripChar(nullptr, '&');
}

// Of ASCII, all the 256.
TEST(LabelText, LettersAndDigits)
{
    constexpr char kAll[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789";
    std::setlocale(LC_ALL, "en_US.ISO-8859-1");
    for (int byte = 0; byte < 256; ++byte) {
        const char c = static_cast<char>(byte);
        EXPECT_EQ(kite::isLetterOrDigit(c), byte != 0 && std::strchr(kAll, c) != nullptr) << byte;
    }
    std::setlocale(LC_ALL, "C");
}
