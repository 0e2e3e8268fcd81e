// ini_text.h: what text a profile may be made of.

#pragma once

#include <string>
#include <string_view>

namespace kitehost {

// Is all of it blank lines, comments, "[section]" and "key = value"? Anything else would be dropped
// when the profile is written again, so a text with it counts as damaged.
bool isIniText(std::string_view text);

// The name as it stands in the file. A byte that would make it read as something else is written as
// "%" and two hexadecimal digits: "a]" as "a%5D". No two names are written alike.
std::string sectionInFile(std::string_view name);
std::string keyInFile(std::string_view name);

// The comment lines of one text that another lacks, in their order, each with its newline.
std::string commentsLost(std::string_view before, std::string_view after);

}  // namespace kitehost
