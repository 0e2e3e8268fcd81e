// clipboard.cpp: the Output area and the clipboard, by selections and by lines.

#include <X11/Intrinsic.h>
#include <kitegui.h>

#include <array>
#include <string>

#include "output.h"
#include "report.h"

namespace tour {

namespace {

constexpr int kCursor = 0;  // of guiGetCurLine

using Line = std::array<char, 256>;

// While a menu is used, the frame is the top window.
GuiWidget outputArea()
{
    return XtNameToWidget(guiGetTopWnd(), "*v_text");
}

bool readCurrent(Line& line)
{
    return guiOutputLine(guiGetCurLine(kCursor) - 1, line.data(), static_cast<int>(line.size())) >=
           0;
}

void reportLines()
{
    report("The clipboard has " + std::to_string(guiClipLines()) + " lines");
}

}  // namespace

void cutSelection()
{
    guiCutSel(outputArea());
    reportLines();
}

void copySelection()
{
    guiCopySel(outputArea());
    reportLines();
}

void pasteSelection()
{
    guiPasteSel(outputArea());
    report("Pasted");
}

void copyLine()
{
    Line line{};
    if (readCurrent(line)) guiCopyText(line.data());
    reportLines();
}

void appendLine()
{
    Line line{};
    if (readCurrent(line)) guiCopyAppText(line.data());
    reportLines();
}

void showClipboard()
{
    Line line{};
    const int count = guiClipLines();
    for (int number = 1; number <= count; ++number) {
        guiPasteText(line.data(), static_cast<int>(line.size()), number);
        guiWriteLine((std::to_string(number) + ": " + line.data()).c_str());
    }
    reportLines();
}

}  // namespace tour
