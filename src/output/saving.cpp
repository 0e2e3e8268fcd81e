// saving.cpp: the Output area as a file.

#include <Xm/Text.h>
#include <kitegui.h>

#include <cstdio>
#include <string_view>

#include "boxes/misuse.h"
#include "output/output_text.h"
#include "toolkit/text_copy.h"
#include "toolkit/text_positions.h"
#include "toolkit/text_selection.h"

namespace kite::output {

namespace {

std::string_view toSave(Widget area, std::string_view whole)
{
    if (!hasUsableSelection(area)) return whole;
    const TextRange range = selectionOf(area);
    const std::size_t left = byteAt(whole, range.left);
    return whole.substr(left, byteAt(whole, range.right) - left);
}

// A full disk may show only when the file is closed.
bool writeAndClose(std::FILE* file, std::string_view bytes)
{
    const bool isWritten = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    return std::fclose(file) == 0 && isWritten;
}

}  // namespace

}  // namespace kite::output

using namespace kite;

int guiSaveOutput(const char* path)
{
    Widget const area = output::textToRead();
    if (!area) return GUI_FAILED;
    if (!path || !*path) return reportMisuse("SaveOutput: invalid file name");
    const TextCopy copy = copyOfText(area);
    if (!copy.bytes) return reportMisuse("SaveOutput: out of memory");
    std::FILE* const file = std::fopen(path, "wb");
    if (!file) return reportMisuse("SaveOutput: cannot open the file");
    if (!output::writeAndClose(file, output::toSave(area, copy.view())))
        return reportMisuse("SaveOutput: error writing the file");
    return 0;
}
