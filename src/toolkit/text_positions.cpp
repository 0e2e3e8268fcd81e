#include "toolkit/text_positions.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace kite {

namespace {

struct Walked {
    std::size_t bytes = 0;
    long positions = 0;
};

Walked walk(std::string_view text, long most)
{
    Walked walked;
    while (walked.bytes < text.size() && walked.positions < most) {
        const int length = std::mblen(text.data() + walked.bytes, text.size() - walked.bytes);
        walked.bytes += static_cast<std::size_t>(std::max(length, 1));
        ++walked.positions;
    }
    return walked;
}

}  // namespace

long positionsIn(std::string_view text)
{
    if (MB_CUR_MAX == 1) return static_cast<long>(text.size());
    return walk(text, std::numeric_limits<long>::max()).positions;
}

std::size_t byteAt(std::string_view text, long position)
{
    if (MB_CUR_MAX > 1) return walk(text, position).bytes;
    return std::min(text.size(), static_cast<std::size_t>(std::max(position, 0L)));
}

}  // namespace kite
