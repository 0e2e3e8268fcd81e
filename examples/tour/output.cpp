#include "output.h"

#include <kitegui.h>

#include <array>
#include <string>

#include "commands.h"
#include "report.h"

namespace tour {

namespace {

constexpr int kLinesAtATime = 5;
constexpr int kCursor = 0;  // of guiGetCurLine and guiGetCurPos

using Text = std::array<char, 256>;

int written = 0;  // lines so far

bool ask(const char* prompt, Text& answer)
{
    return guiGetTextBox(prompt, answer.data(), static_cast<int>(answer.size()), 0) > 0;
}

// Lines are selected by numbers from 1, and read by numbers from 0.
void selectLine(int line)
{
    Text text{};
    const int length = guiOutputLine(line - 1, text.data(), static_cast<int>(text.size()));
    if (length > 0 && guiSelOutputLine(line, 0, length))
        report(std::string{"Selected: "} + text.data());
    else
        report("There is nothing to select");
}

}  // namespace

void welcome()
{
    guiWriteHTML("Welcome to the tour of <b>kitegui</b>.<br><br>"
                 "Choose a command from the menus, from the<br>"
                 "toolbar or by its keys, which the menus show.<br><br>"
                 "&lt;F1&gt; to &lt;F9&gt; open one box each.<br>");
    guiWriteLine("");
}

void writeLines()
{
    for (int line = 0; line < kLinesAtATime; ++line) {
        guiWriteText(("Line " + std::to_string(++written)).c_str());
        guiWriteLine(" of plain text");
    }
    report("Five lines were written");
}

void writeHtml()
{
    guiWriteHTML("<h1>A heading</h1>Text with <i>markup</i>: 2 &lt; 3 &amp; 4 &gt; 3.<br>"
                 "<pre>    kept   as   it   is</pre>");
    guiWriteLine("");
    report("HTML was written as plain text");
}

void replaceSelection()
{
    Text text{};
    if (!ask("The text that replaces the selection:", text)) return report("Nothing was replaced");
    guiWriteSel(text.data());
    report("The selection was replaced");
}

void selectFirstLine()
{
    selectLine(1);
}

void selectLastLine()
{
    selectLine(guiOutputLineCount());
}

void selectEverything()
{
    guiSelOutputLine(1, 0, -1);
    report("Everything is selected");
}

void countLines()
{
    report("The output has " + std::to_string(guiOutputLineCount()) + " lines");
}

void showCursor()
{
    report("The cursor is in line " + std::to_string(guiGetCurLine(kCursor)) + ", column " +
           std::to_string(guiGetCurPos(kCursor)));
}

void clearOutput()
{
    if (guiGetCommandCheck(Protect) == 1) {
        guiBeep();
        return report("The output is protected");
    }
    guiClearOutput();
    report("Cleared");
}

}  // namespace tour
