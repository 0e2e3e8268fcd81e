// html_attribute.h: an attribute of a tag, found by a rule that is crude on purpose: pages that hosts have
// are written for it.

#pragma once

#include <optional>
#include <string_view>

namespace kite {

inline constexpr std::size_t kAttributeValueSize = 64;  // bytes; a longer value is cut

// What looking for an attribute gives.
struct Attribute {
    bool isPresent = false;
    std::string_view value;  // empty also when there is none
    std::size_t at = 0;      // where in the text it was found, when it is present
};

// The last occurrence of the name's first letter counts for the whole name, wherever it stands in the
// text: as many bytes as the name has are skipped there without a look at them.
Attribute findAttribute(std::string_view text, std::string_view name);

// Clears the first byte of `value` and puts the attribute's value over the others; without a null behind
// it, so that bytes of earlier values stay. Callers compare fixed beginnings.
void copyValue(const Attribute& attribute, char* value);

// Both, for `value` of kAttributeValueSize. 1 when the attribute is present, else 0.
int GetAttribute(const char* tag, const char* name, char* value);

}  // namespace kite
