// line_starts.h: where the lines of a plain text begin.

#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace kite {

// A line ends with "\n" or with the text; positions are bytes from 0. The text must outlive its index.
// Callers count lines from 0 or from 1, each as its function says.
class LineStarts {
public:
    LineStarts() = default;

    // One pass over the text. Throws std::bad_alloc when there is no memory for it.
    explicit LineStarts(std::string_view text);

    std::string_view text() const { return text_; }

    // The line ends, and one more line when there is text behind the last of them.
    int count() const;

    // A line without its end, counted from 0. The empty rest behind a last "\n" is no line.
    std::optional<std::string_view> line(int number) const;

    // Behind that many line ends (0 or more); the end of the text when there are fewer.
    std::size_t behindLineEnds(int lineEnds) const;

    // The line of a position, counted from 1, and the bytes before it in that line. A position beyond
    // the text is its end.
    int lineAt(std::size_t position) const;
    int columnAt(std::size_t position) const;

private:
    std::string_view text_;
    std::vector<std::uint32_t> starts_;  // 0, and behind each line end
};

}  // namespace kite
