// clipboard_lines.cpp: lines of plain text on the clipboard.

#include <kitegui.h>

#include <algorithm>
#include <cstring>
#include <new>
#include <string_view>

#include "boxes/misuse.h"
#include "output/copied_text.h"
#include "toolkit/clipboard.h"
#include "toolkit/host_buffer.h"

namespace kite::output {

namespace {

TextCopy readAnyText(Clipboard& clipboard)
{
    return clipboard ? clipboard.text({kPlainText, kCompoundText}) : TextCopy{};
}

TextCopy readAnyText()
{
    Clipboard clipboard{copier()};
    return readAnyText(clipboard);
}

// What stands behind so many line ends, to the end; nothing behind the last byte.
std::string_view fromLine(std::string_view text, int line)
{
    int number = 1;
    const auto start = std::ranges::find_if(text, [&](char byte) {
        const bool isThere = number == line;
        if (byte == '\n') ++number;
        return isThere;
    });
    return text.substr(static_cast<std::size_t>(start - text.begin()));
}

// Puts the text, the line and a line end on the clipboard.
void putWithLine(Clipboard& clipboard, std::string_view text, std::string_view line)
{
    const std::size_t length = text.size() + line.size() + 1;
    const std::unique_ptr<char[]> all{new (std::nothrow) char[length]};
    if (!all) return;
    line.copy(all.get() + text.copy(all.get(), text.size()), line.size());
    all[length - 1] = '\n';
    clipboard.put({all.get(), length});
}

}  // namespace

}  // namespace kite::output

using namespace kite;
using namespace kite::output;

void guiCopyText(const char* text)
{
    if (!text || !isCopyable(std::strlen(text) + 1)) return;
    Clipboard clipboard{copier()};
    if (clipboard) putWithLine(clipboard, {}, text);
}

// Compound text goes on as the bytes that it is.
void guiCopyAppText(const char* text)
{
    if (!text || !isCopyable(std::strlen(text) + 1)) return;
    Clipboard clipboard{copier()};
    if (!clipboard) return;
    const TextCopy before = readAnyText(clipboard);
    putWithLine(clipboard, before.view(), text);
}

int guiClipLines(void)
{
    const TextCopy text = readAnyText();
    if (!text.bytes) return 0;
    const std::string_view withoutLast = text.view().substr(0, text.length - 1);
    return 1 + static_cast<int>(std::ranges::count(withoutLast, '\n'));
}

int guiPasteText(char* buffer, int size, int line)
{
    if (!isUsableBuffer(buffer, size)) return reportMisuse("GetClipLine: invalid buffer");
    buffer[0] = '\0';
    if (line < 0) return GUI_FAILED;
    const TextCopy text = readAnyText();
    if (!text.bytes) return 0;
    const std::string_view rest = fromLine(text.view(), line);
    if (rest.empty()) return GUI_FAILED;
    return copyToBuffer(buffer, size, rest.substr(0, rest.find('\n')));
}
