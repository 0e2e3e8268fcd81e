#include "toolkit/line_starts.h"

#include <algorithm>

namespace kite {

namespace {

std::size_t lineEnds(std::string_view text)
{
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

}  // namespace

LineStarts::LineStarts(std::string_view text) : text_(text)
{
    starts_.reserve(lineEnds(text) + 1);
    starts_.push_back(0);
    for (auto end = text.find('\n'); end != std::string_view::npos; end = text.find('\n', end + 1))
        starts_.push_back(static_cast<std::uint32_t>(end + 1));
}

int LineStarts::count() const
{
    if (text_.empty()) return 0;
    return static_cast<int>(starts_.size()) - (text_.back() == '\n' ? 1 : 0);
}

std::optional<std::string_view> LineStarts::line(int number) const
{
    if (number < 0 || number >= count()) return std::nullopt;
    const auto index = static_cast<std::size_t>(number);
    const std::size_t start = starts_[index];
    const std::size_t next = index + 1 < starts_.size() ? starts_[index + 1] - 1 : text_.size();
    return text_.substr(start, next - start);
}

std::size_t LineStarts::behindLineEnds(int lineEnds) const
{
    const auto index = static_cast<std::size_t>(lineEnds);
    return index < starts_.size() ? starts_[index] : text_.size();
}

int LineStarts::lineAt(std::size_t position) const
{
    const auto behind = std::upper_bound(starts_.begin(), starts_.end(), position);
    return static_cast<int>(behind - starts_.begin());
}

int LineStarts::columnAt(std::size_t position) const
{
    if (starts_.empty()) return 0;
    const std::size_t inText = std::min(position, text_.size());
    return static_cast<int>(inText - starts_[static_cast<std::size_t>(lineAt(inText)) - 1]);
}

}  // namespace kite
