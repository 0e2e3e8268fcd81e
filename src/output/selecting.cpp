// selecting.cpp: selects a stretch of a line of the Output area.

#include <Xm/Text.h>
#include <kitegui.h>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string_view>

#include "boxes/misuse.h"
#include "output/output_text.h"
#include "toolkit/parked_copy.h"
#include "toolkit/server_time.h"
#include "toolkit/text_positions.h"
#include "toolkit/text_selection.h"

namespace kite::output {

namespace {

// Positions are kept in 16 bits, as hosts know them: beyond 32767 they wrap. What comes out negative or
// beyond the text is no selection to the toolkit.
std::int16_t wrapped(std::int64_t position)
{
    return static_cast<std::int16_t>(position);
}

// The position of a byte; outside the text the distance stays what it is.
XmTextPosition positionOf(std::string_view text, std::int64_t byte)
{
    const auto inText = std::clamp<std::int64_t>(byte, 0, std::ssize(text));
    return positionsIn(text.substr(0, static_cast<std::size_t>(inText))) + (byte - inText);
}

TextRange stretch(const LineStarts& lines, int lineEnds, int column, int count)
{
    const std::string_view text = lines.text();
    const auto lineStart = static_cast<std::int64_t>(lines.behindLineEnds(lineEnds));
    const std::int16_t start = wrapped(lineStart + column);
    const std::int16_t end = wrapped(std::int64_t{start} + count);
    // 65535 in 16 bits: "to the end" for hosts that select everything.
    const bool isEverything = start == 0 && end == -1;
    return {positionOf(text, start), positionOf(text, isEverything ? std::ssize(text) : end)};
}

// Another client may have selected since our last event: with the time of that event, the server would
// leave the selection to it.
void select(Widget area, const TextRange& range)
{
    XmTextSetSelection(area, range.left, range.right, serverTime(XtDisplay(area)));
    XmTextSetInsertionPosition(area, range.right);
    XmTextShowPosition(area, range.right);
}

}  // namespace

}  // namespace kite::output

using namespace kite;

int guiSelOutputLine(int line, int startCol, int count)
{
    if (line < 1 || line - 1 > guiOutputLineCount()) return 0;
    Widget const area = output::textToRead();
    if (!area) return 0;
    const LineStarts* const lines = parkCopy(area);
    if (!lines) return reportMisuse("GetLineCount: out of memory");
    if (lines->text().empty()) return 0;
    output::select(area, output::stretch(*lines, line - 1, startCol, count));
    return 1;
}
