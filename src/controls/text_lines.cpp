#include "controls/text_lines.h"

#include <Xm/Text.h>
#include <kitegui.h>

#include <string_view>

#include "boxes/misuse.h"
#include "toolkit/text_copy.h"
#include "toolkit/text_positions.h"

namespace kite {

namespace {

// Behind that many line ends; the end of the text when there are fewer. Takes no memory, other than an index
// of all lines.
std::size_t behindLineEnds(std::string_view text, int lineEnds)
{
    std::size_t start = 0;
    for (int passed = 0; passed < lineEnds; ++passed) {
        const std::size_t end = text.find('\n', start);
        if (end == std::string_view::npos) return text.size();
        start = end + 1;
    }
    return start;
}

}  // namespace

std::optional<XmTextPosition> startOfLine(Widget text, int line)
{
    if (line < 0 || line > guiOutputLineCount()) return std::nullopt;
    const TextCopy copy = copyOfText(text);
    if (!copy.bytes) {
        reportMisuse("GetLineCount: out of memory");
        return std::nullopt;
    }
    if (copy.length == 0) return std::nullopt;
    return positionsIn(copy.view().substr(0, behindLineEnds(copy.view(), line)));
}

}  // namespace kite
