#include "ini_text.h"

#include <algorithm>
#include <cctype>
#include <map>

namespace kitehost {
namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kNewlines = "\r\n";
constexpr std::string_view kCommentStarts = ";#";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

bool isText(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    return (byte >= ' ' && byte != 0x7F) || c == '\t' || c == '\r' || c == '\n';
}

std::string_view trimmed(std::string_view text)
{
    const std::size_t begin = text.find_first_not_of(kBlanks);
    if (begin == std::string_view::npos) return {};
    return text.substr(begin, text.find_last_not_of(kBlanks) - begin + 1);
}

bool isComment(std::string_view trimmedLine)
{
    return !trimmedLine.empty() &&
           kCommentStarts.find(trimmedLine.front()) != std::string_view::npos;
}

// The text behind the "]" of a heading.
std::string_view behindHeading(std::string_view heading)
{
    return trimmed(heading.substr(heading.find(']') + 1));
}

bool isHeading(std::string_view line)
{
    if (line.front() != '[' || line.find(']') == std::string_view::npos) return false;
    const std::string_view rest = behindHeading(line);
    return rest.empty() || isComment(rest);
}

bool isAssignment(std::string_view line)
{
    const std::size_t equals = line.find('=');
    return line.front() != '[' && equals != 0 && equals != std::string_view::npos;
}

bool isIniLine(std::string_view line)
{
    return line.empty() || isComment(line) || isHeading(line) || isAssignment(line);
}

// The comment that a line consists of or, for a heading, ends with; empty when it has none. Values
// have no comments behind them: a print command may well hold a ';'.
std::string_view commentOf(std::string_view line)
{
    if (isComment(line)) return line;
    return !line.empty() && isHeading(line) ? behindHeading(line) : std::string_view{};
}

// Calls the visitor with each line without the blanks around it, while it returns true.
template <class Visitor>
bool allLines(std::string_view text, Visitor visit)
{
    if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of(kNewlines), text.size());
        if (!visit(trimmed(text.substr(0, end)))) return false;
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return true;
}

bool isHexDigit(char c)
{
    return std::isxdigit(static_cast<unsigned char>(c)) != 0;
}

// What would be read as an escape is one.
bool isEscape(std::string_view text)
{
    return text.size() >= 3 && text[0] == '%' && isHexDigit(text[1]) && isHexDigit(text[2]);
}

std::string escaped(char c)
{
    constexpr char kDigits[] = "0123456789ABCDEF";
    const auto byte = static_cast<unsigned char>(c);
    return {'%', kDigits[byte / 16], kDigits[byte % 16]};
}

// Blanks at both ends would get lost.
std::string inFile(std::string_view name, char end)
{
    const std::string_view inner = trimmed(name);
    const std::size_t first = name.find(inner);
    std::string result;
    for (std::size_t i = 0; i < name.size(); ++i) {
        const bool isInner = i >= first && i < first + inner.size();
        const bool isPlain = isInner && isText(name[i]) && name[i] != end &&
                             kNewlines.find(name[i]) == std::string_view::npos &&
                             !isEscape(name.substr(i));
        result += isPlain ? std::string{name[i]} : escaped(name[i]);
    }
    return result;
}

}  // namespace

bool isIniText(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), isText) && allLines(text, isIniLine);
}

// The empty name is the section of the keys in front of the first heading.
std::string sectionInFile(std::string_view name)
{
    return inFile(name, ']');
}

// What makes a line a heading or a comment does so at its beginning only. A byte order mark is none there
// but at the very beginning of the file.
std::string keyInFile(std::string_view name)
{
    std::string result = inFile(name, '=');
    const bool looksDifferent =
        result.starts_with('[') || isComment(result) || result.starts_with(kByteOrderMark);
    return looksDifferent ? escaped(result.front()) + result.substr(1) : result;
}

std::string commentsLost(std::string_view before, std::string_view after)
{
    std::map<std::string_view, int> kept;
    allLines(after, [&](std::string_view line) {
        ++kept[commentOf(line)];
        return true;
    });
    std::string lost;
    allLines(before, [&](std::string_view line) {
        const std::string_view comment = commentOf(line);
        if (!comment.empty() && --kept[comment] < 0) lost.append(comment).append("\n");
        return true;
    });
    return lost;
}

}  // namespace kitehost
