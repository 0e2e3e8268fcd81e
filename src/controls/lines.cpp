// lines.cpp: the lines of a multi-line text, counted from 0.

#include <Xm/Text.h>
#include <kitegui.h>

#include <cstring>
#include <memory>
#include <new>

#include "boxes/misuse.h"
#include "dialogs/control_lookup.h"
#include "frame/dispatcher.h"
#include "toolkit/held_redisplay.h"
#include "toolkit/host_buffer.h"
#include "toolkit/parked_copy.h"

namespace kite {

namespace {

constexpr TypeSet kTexts{ControlType::Text};
constexpr int kWholeText = -1;

// Nothing when there is no such line.
std::optional<std::string_view> lineOf(const LineStarts& lines, int line)
{
    return line == kWholeText ? lines.text() : lines.line(line);
}

// Null when there is no memory.
std::unique_ptr<char[]> withLineEnd(const char* text)
{
    const std::size_t length = std::strlen(text);
    std::unique_ptr<char[]> line{new (std::nothrow) char[length + 2]};
    if (!line) return nullptr;
    std::memcpy(line.get(), text, length);
    std::memcpy(line.get() + length, "\n", 2);
    return line;
}

// The insertion point stays where the user has it, though the text may have ended there.
void append(Widget text, char* line)
{
    const EventsSuppressed quiet;
    const HeldRedisplay held{text};
    const XmTextPosition insertionPoint = XmTextGetInsertionPosition(text);
    XmTextInsert(text, XmTextGetLastPosition(text), line);
    XmTextSetInsertionPosition(text, insertionPoint);
}

}  // namespace

}  // namespace kite

using namespace kite;

int guiGetLine(int id, int line, char* buffer, int size)
{
    if (!isUsableBuffer(buffer, size)) return reportMisuse("GetLine: invalid buffer");
    buffer[0] = '\0';
    const Control control = findControl("GetLine", id, kTexts);
    if (!control || line < kWholeText) return GUI_FAILED;
    const LineStarts* const lines = parkCopy(control.widget);
    if (!lines) return reportMisuse("GetLine: out of memory");
    const auto found = lineOf(*lines, line);
    return found ? copyToBuffer(buffer, size, *found) : GUI_FAILED;
}

int guiGetLineCount(int id)
{
    const Control control = findControl("GetLineCount", id, kTexts);
    if (!control) return GUI_FAILED;
    const LineStarts* const lines = parkCopy(control.widget);
    if (!lines) return reportMisuse("GetLineCount: out of memory");
    return lines->count();
}

void guiAppendLine(int id, const char* text)
{
    const Control control = findControl("AppendLine", id, kTexts);
    if (!control) return;
    if (const auto line = withLineEnd(orEmpty(text)))
        append(control.widget, line.get());
    else
        reportMisuse("AppendLine: out of memory");
}

// Under the name of what it is to lists: hosts know one operation that appends.
void guiAppendHTML(int id, const char* html)
{
    const Control control = findControl("AppendItem", id, kTexts);
    if (!control) return;
    const EventsSuppressed quiet;
    guiHTML2Rich(control.widget, orEmpty(html));
}
