#include "toolkit/label_text.h"

#include <algorithm>
#include <cstring>

namespace kite {

namespace {

constexpr char kMark = '&';

bool isBetween(char first, char c, char last)
{
    return c >= first && c <= last;
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
    LabelText text{name, mnemonicOf(name)};
    stripChar(text.label.data(), kMark);
    text.label.resize(std::strlen(text.label.c_str()));
    return text;
}

}  // namespace kite
