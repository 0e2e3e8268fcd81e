// letter_editor.cpp: a text of several lines, with the place of the insertion point in the status line.

#include <array>
#include <string>

#include "dialogs.h"
#include "report.h"

namespace tour {

namespace {

enum Control { Close = GUI_CANCEL_BUTTON, Letter = 1, Insert, Sign, Selected, Lines };

constexpr int kWidth = 180;  // dialog units

constexpr char kLetter[] = "Dear reader,\n"
                           "\n"
                           "this text can be edited, also on the far\n"
                           "side of a slow network. The status line\n"
                           "of the frame behind shows where the\n"
                           "insertion point is.\n";

void build()
{
    guiDialog("Letter");
    guiText(Letter, 0, 9, 0, kWidth, 0);
    guiButton(Insert, 9, 0, 44, "&Date", 0);
    guiButton(Sign, 9, 48, 44, "&Sign", 0);
    guiButton(Close, 9, kWidth - 44, 44, "Close", 0);
    guiLabel(Lines, 10, 0, 88, "");
}

void countLines()
{
    guiSetText(Lines, (std::to_string(guiGetLineCount(Letter)) + " lines").c_str());
}

void begin()
{
    guiSetText(Letter, kLetter);
    guiSetFocus(Letter);
    countLines();
}

void showPlace(int line, int column)
{
    countLines();
    if (line < 0) return report("The letter is empty");
    std::array<char, 128> text{};
    guiGetLine(Letter, line, text.data(), static_cast<int>(text.size()));
    report("Line " + std::to_string(line + 1) + ", column " + std::to_string(column + 1) + ": " +
           text.data());
}

void sign()
{
    guiAppendLine(Letter, "");
    guiAppendHTML(Letter, "With kind regards,<br>the <b>tour</b> of kitegui");
    countLines();
}

void insertDate()
{
    guiInsertText(Letter, "22 November 2026");
    countLines();
}

int handle(int event, int id, int a, int b)
{
    if (event == GUI_EVENT_INIT) begin();
    if (event == GUI_EVENT_CURSOR) showPlace(a, b);
    if (event == GUI_EVENT_COMMAND && id == Insert) insertDate();
    if (event == GUI_EVENT_COMMAND && id == Sign) sign();
    if (event == GUI_EVENT_COMMAND && id == Close) guiClose(0);
    return 0;
}

}  // namespace

void showLetter()
{
    build();
    runDialog(handle);
    report("The letter was put away");
}

}  // namespace tour
