// writing.cpp: what the host writes to the Output area.

#include <Xm/Text.h>
#include <kitegui.h>

#include <cstring>
#include <memory>
#include <new>

#include "boxes/misuse.h"
#include "frame/log_file.h"
#include "output/output_text.h"
#include "toolkit/held_redisplay.h"
#include "toolkit/text_positions.h"
#include "toolkit/text_selection.h"

namespace kite::output {

namespace {

// The toolkit takes texts as mutable and leaves them as they are.
char* mutableText(const char* text)
{
    return const_cast<char*>(text);
}

void append(Widget area, const char* text)
{
    const HeldRedisplay held{area};
    const XmTextPosition end = XmTextGetLastPosition(area);
    XmTextInsert(area, end, mutableText(text));
    XmTextSetInsertionPosition(area, end + positionsIn(text));
    XmTextClearSelection(area, CurrentTime);  // the toolkit has no use for the time
}

}  // namespace

}  // namespace kite::output

using namespace kite;

void guiWriteText(const char* text)
{
    Widget const area = output::text();
    if (!area || !text) return;
    output::append(area, text);
    outputLog().write(text, 0);
}

void guiWriteLine(const char* text)
{
    Widget const area = output::text();
    if (!area || !text) return;
    const std::size_t length = std::strlen(text);
    const std::unique_ptr<char[]> line{new (std::nothrow) char[length + 2]};
    if (!line) {
        reportMisuse("WriteLine: out of memory");
        return;
    }
    std::memcpy(line.get(), text, length);
    std::memcpy(line.get() + length, "\n", 2);
    output::append(area, line.get());
    line[length] = '\0';
    outputLog().write(line.get(), 1);
}

// With nothing selected it writes to the very beginning: there the selection of a fresh area is, and
// hosts write headings that way.
void guiWriteSel(const char* text)
{
    Widget const area = output::text();
    if (!area || !text) return;
    const HeldRedisplay held{area};
    const TextRange range = selectionOf(area);
    XmTextReplace(area, range.left, range.right, output::mutableText(text));
    XmTextSetInsertionPosition(area, range.left + positionsIn(text));
}

// With text selected only that is removed, the same as the user's own "clear".
int guiClearOutput(void)
{
    Widget const area = output::text();
    if (!area) return 0;
    const HeldRedisplay held{area};
    clearSelectionOrAll(area);
    return 0;
}
