#include "output/html_attribute.h"

#include <algorithm>

namespace kite {

namespace {

std::string_view withoutLeadingBlanks(std::string_view text)
{
    const auto start = text.find_first_not_of(' ');
    return start == std::string_view::npos ? std::string_view{} : text.substr(start);
}

bool isWordByte(char byte)
{
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') ||
           (byte >= '0' && byte <= '9') || byte == '-';
}

// Behind the "=": up to the matching quote, or a word.
std::string_view valueAt(std::string_view text)
{
    if (text.empty()) return {};
    if (const char quote = text.front(); quote == '"' || quote == '\'')
        return text.substr(1, text.find(quote, 1) - 1);
    const auto end = std::find_if_not(text.begin(), text.end(), isWordByte);
    return text.substr(0, static_cast<std::size_t>(end - text.begin()));
}

}  // namespace

Attribute findAttribute(std::string_view text, std::string_view name)
{
    const auto at = name.empty() ? std::string_view::npos : text.rfind(name.front());
    if (at == std::string_view::npos) return {};
    std::string_view rest = text.substr(std::min(at + name.size(), text.size()));
    rest = withoutLeadingBlanks(rest);
    if (rest.empty() || rest.front() != '=') return {true, {}, at};
    return {true, valueAt(withoutLeadingBlanks(rest.substr(1))), at};
}

void copyValue(const Attribute& attribute, char* value)
{
    value[0] = '\0';
    attribute.value.copy(value, kAttributeValueSize);
}

int GetAttribute(const char* tag, const char* name, char* value)
{
    const Attribute attribute = findAttribute(tag, name);
    copyValue(attribute, value);
    return attribute.isPresent ? 1 : 0;
}

}  // namespace kite
