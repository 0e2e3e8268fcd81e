#include "controls/text_lines.h"

#include <Xm/Text.h>
#include <kitegui.h>

#include <algorithm>

#include "boxes/misuse.h"
#include "toolkit/line_starts.h"
#include "toolkit/text_copy.h"
#include "toolkit/text_positions.h"

namespace kite {

std::optional<int> topLineOf(Widget text)
{
    const TextCopy copy = copyOfText(text);
    if (!copy.bytes) return std::nullopt;
    const auto above = copy.view().substr(0, byteAt(copy.view(), XmTextGetTopCharacter(text)));
    return static_cast<int>(std::count(above.begin(), above.end(), '\n'));
}

std::optional<XmTextPosition> startOfLine(Widget text, int line)
{
    if (line < 0 || line > guiOutputLineCount()) return std::nullopt;
    const TextCopy copy = copyOfText(text);
    if (!copy.bytes) {
        reportMisuse("GetLineCount: out of memory");
        return std::nullopt;
    }
    if (copy.length == 0) return std::nullopt;
    const LineStarts lines{copy.view()};
    return positionsIn(copy.view().substr(0, lines.behindLineEnds(line)));
}

}  // namespace kite
