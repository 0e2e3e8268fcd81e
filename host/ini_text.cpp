#include "ini_text.h"

#include <algorithm>
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

bool isPlainName(std::string_view name)
{
    return std::all_of(name.begin(), name.end(), isText) &&
           name.find_first_of(kNewlines) == std::string_view::npos && trimmed(name) == name;
}

}  // namespace

bool isIniText(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), isText) && allLines(text, isIniLine);
}

// The empty name is the section of the keys in front of the first heading.
bool isSectionName(std::string_view name)
{
    return isPlainName(name) && name.find(']') == std::string_view::npos;
}

bool isKeyName(std::string_view name)
{
    // A byte order mark at the very beginning of the file would be taken for one.
    return isPlainName(name) && !name.empty() && name.find('=') == std::string_view::npos &&
           !name.starts_with('[') && !isComment(name) && !name.starts_with(kByteOrderMark);
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
