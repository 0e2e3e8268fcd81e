// reading.cpp: the Output area line by line, and where the insertion point stands in it.
//
// Lines and columns are counted as each function has always counted them; hosts depend on every one:
// guiOutputLine and columns from 0, guiGetCurLine from 1.

#include <Xm/Text.h>
#include <kitegui.h>

#include <algorithm>

#include "boxes/misuse.h"
#include "output/output_text.h"
#include "toolkit/host_buffer.h"
#include "toolkit/parked_copy.h"
#include "toolkit/text_positions.h"
#include "toolkit/text_selection.h"

namespace kite::output {

namespace {

XmTextPosition position(Widget area, int which)
{
    if (which != GUI_SELECTION_START && which != GUI_SELECTION_END)
        return XmTextGetInsertionPosition(area);
    const TextRange range = selectionOf(area);
    return which == GUI_SELECTION_START ? std::min(range.left, range.right)
                                        : std::max(range.left, range.right);
}

// What a function of the index makes of the position; 0 for an empty text.
int measure(int which, int (LineStarts::*measured)(std::size_t) const)
{
    Widget const area = textToRead();
    if (!area) return GUI_FAILED;
    const LineStarts* const lines = parkCopy(area);
    if (!lines) return reportMisuse("GetLineCount: out of memory");
    if (lines->text().empty()) return 0;
    return (lines->*measured)(byteAt(lines->text(), position(area, which)));
}

}  // namespace

}  // namespace kite::output

using namespace kite;

int guiOutputLineCount(void)
{
    Widget const area = output::textToRead();
    if (!area) return GUI_FAILED;
    const LineStarts* const lines = parkCopy(area);
    return lines ? lines->count() : reportMisuse("GetLineCount: out of memory");
}

int guiOutputLine(int line, char* buf, int size)
{
    if (!isUsableBuffer(buf, size)) return reportMisuse("GetLine: invalid buffer");
    buf[0] = '\0';
    Widget const area = output::textToRead();
    if (!area || line < 0) return GUI_FAILED;
    const LineStarts* const lines = parkCopy(area);
    if (!lines) return reportMisuse("GetLine: out of memory");
    const auto found = lines->line(line);
    return found ? copyToBuffer(buf, size, *found) : GUI_FAILED;
}

int guiGetCurPos(int which)
{
    return output::measure(which, &LineStarts::columnAt);
}

int guiGetCurLine(int which)
{
    return output::measure(which, &LineStarts::lineAt);
}
