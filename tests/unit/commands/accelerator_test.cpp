// Accelerators: what each byte stands for.

#include "commands/accelerator.h"

#include <gtest/gtest.h>

#include <cctype>
#include <string>

namespace commands = kite::commands;

namespace {

std::string oneOf(int c)
{
    return std::string(1, static_cast<char>(c));
}

}  // namespace

TEST(Accelerator, AllBytes)
{
    for (int byte = 0; byte < 256; ++byte) {
        SCOPED_TRACE(byte);
        const char c = static_cast<char>(byte);
        EXPECT_EQ(commands::isNoAccelerator(c), byte == 0 || byte == ' ');
        const bool isKey = byte < 128 && std::isalnum(byte);
        EXPECT_EQ(commands::isAccelerator(c), isKey);
        if (!isKey) continue;
        const std::string shift = std::isupper(byte) ? " Shift" : "";
        const std::string shiftText = std::isupper(byte) ? "Shift+" : "";
        const commands::Accelerator accelerator = commands::acceleratorFor(c);
        EXPECT_EQ(accelerator.translation, "Ctrl" + shift + "<Key>" + oneOf(std::toupper(byte)));
        EXPECT_EQ(accelerator.text, "Ctrl+" + shiftText + oneOf(std::toupper(byte)));
    }
}

TEST(Accelerator, Texts)
{
    EXPECT_EQ(commands::acceleratorFor('o').translation, "Ctrl<Key>O");
    EXPECT_EQ(commands::acceleratorFor('o').text, "Ctrl+O");
    EXPECT_EQ(commands::acceleratorFor('O').translation, "Ctrl Shift<Key>O");
    EXPECT_EQ(commands::acceleratorFor('O').text, "Ctrl+Shift+O");
    EXPECT_EQ(commands::acceleratorFor('7').translation, "Ctrl<Key>7");
    EXPECT_EQ(commands::acceleratorFor('7').text, "Ctrl+7");
}
