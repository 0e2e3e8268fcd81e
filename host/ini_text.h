// ini_text.h: what text a profile may be made of.

#pragma once

#include <string>
#include <string_view>

namespace kitehost {

// Is all of it blank lines, comments, "[section]" and "key = value"? Anything else would be dropped
// when the profile is written again, so a text with it counts as damaged.
bool isIniText(std::string_view text);

// Can the name be written so that exactly this name is read again? What cannot is refused: it would
// read as another section or key.
bool isSectionName(std::string_view name);
bool isKeyName(std::string_view name);

// The comment lines of one text that another lacks, in their order, each with its newline.
std::string commentsLost(std::string_view before, std::string_view after);

}  // namespace kitehost
