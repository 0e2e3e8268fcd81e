#include "toolkit/label_text.h"

#include <algorithm>
#include <cstring>

namespace kite {

namespace {

constexpr char kMark = '&';
constexpr std::size_t kLongestControlLabel = 255;

bool isBetween(char first, char c, char last)
{
    return c >= first && c <= last;
}

std::string withoutMarks(std::string text)
{
    stripChar(text.data(), kMark);
    text.resize(std::strlen(text.c_str()));
    return text;
}

// Of a second mark nothing comes but its removal: "Save && Exit" has no mnemonic.
char mnemonicOf(const char* name)
{
    const char* const mark = std::strchr(name, kMark);
    return mark && isLetterOrDigit(mark[1]) ? mark[1] : '\0';
}

}  // namespace

void stripChar(char* s, char c)
{
    if (s) *std::remove(s, s + std::strlen(s), c) = '\0';
}

bool isLetterOrDigit(char c)
{
    return isBetween('A', c, 'Z') || isBetween('a', c, 'z') || isBetween('0', c, '9');
}

LabelText parseLabel(const char* name)
{
    return {withoutMarks(name), mnemonicOf(name)};
}

std::string controlLabel(const char* text)
{
    return text ? withoutMarks({text, strnlen(text, kLongestControlLabel)}) : std::string{};
}

}  // namespace kite
