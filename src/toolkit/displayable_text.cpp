#include "toolkit/displayable_text.h"

#include <cstring>

namespace kite {

std::string displayableText(const char* text)
{
    return text ? std::string{text, strnlen(text, kLongestDisplayableText)} : std::string{};
}

}  // namespace kite
