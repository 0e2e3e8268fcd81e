// print_settings.cpp: a form of choices and values, one of which is shown while it is dragged.

#include <array>
#include <string>

#include "dialogs.h"
#include "report.h"

namespace tour {

namespace {

enum Control {
    Cancel = GUI_CANCEL_BUTTON,
    Paper = 1,
    Printer,
    Copies,
    Darkness,
    DarknessBar,
    DarknessText,
    Ok
};

// In dialog units.
constexpr int kFields = 48;
constexpr int kFieldWidth = 88;
constexpr int kWidth = kFields + kFieldWidth;

constexpr int kMostCopies = 99;

void label(int row, const char* text)
{
    guiLabel(GUI_ANONYMOUS, row, 0, kFields - 4, text);
}

void build()
{
    guiDialog("Settings");
    label(0, "Paper:");
    guiChoice(Paper, 0, kFields, kFieldWidth);
    label(1, "Printer:");
    guiCombo(Printer, 1, kFields, kFieldWidth);
    label(2, "Copies:");
    guiSpin(Copies, 2, kFields, 40);
    guiLine(GUI_ANONYMOUS, 3, 1, 0, kWidth);
    label(4, "Darkness:");
    guiSlider(Darkness, 4, 1, kFields, kFieldWidth);
    guiLabel(DarknessText, 5, 0, kFields - 4, "");
    guiProgress(DarknessBar, 5, 1, kFields, kFieldWidth);
    guiLine(GUI_ANONYMOUS, 6, 1, 0, kWidth);
    guiButton(Ok, 7, 16, 44, "OK", 1);
    guiButton(Cancel, 7, 76, 44, "Cancel", 0);
}

void showDarkness(int percent)
{
    guiSetText(DarknessText, (std::to_string(percent) + " %").c_str());
    guiSetPos(DarknessBar, percent - 1);  // a progress bar shows one more
}

void begin()
{
    for (const char* const paper : {"A3", "A4", "A5", "Letter", "Legal"})
        guiAppendItem(Paper, paper);
    guiSetSel(Paper, 1);
    for (const char* const printer : {"Office", "Hall", "Photographs"})
        guiAppendItem(Printer, printer);
    guiSetRange(Copies, 1, kMostCopies);
    guiSetTextInt(Copies, 1);
    guiSetPos(Darkness, 40);
    showDarkness(40);
}

void finish()
{
    std::array<char, 64> printer{};
    std::array<char, 64> paper{};
    guiGetText(Printer, printer.data(), static_cast<int>(printer.size()));
    guiGetText(Paper, paper.data(), static_cast<int>(paper.size()));
    report(std::to_string(guiGetTextInt(Copies)) + " x " + paper.data() + " on " + printer.data());
    guiClose(1);
}

int handle(int event, int id, int a, int)
{
    if (event == GUI_EVENT_INIT) begin();
    if (event == GUI_EVENT_VALUE && id == Darkness) showDarkness(a);
    if (event == GUI_EVENT_COMMAND && id == Ok) finish();
    if (event == GUI_EVENT_COMMAND && id == Cancel) guiClose(0);
    return 0;
}

}  // namespace

void showSettings()
{
    build();
    if (runDialog(handle) == 0) report("The settings stay as they were");
}

}  // namespace tour
