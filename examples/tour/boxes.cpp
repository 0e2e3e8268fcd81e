#include "boxes.h"

#include <kitegui.h>

#include <array>
#include <cstdio>

#include "report.h"

namespace tour {

namespace {

void ask(const char* prompt, const char* proposal, bool isHidden)
{
    std::array<char, 64> answer{};
    std::snprintf(answer.data(), answer.size(), "%s", proposal);
    const int length =
        guiGetTextBox(prompt, answer.data(), static_cast<int>(answer.size()), isHidden);
    if (length < 0)
        report("No text was given");
    else if (isHidden)
        report("A secret of " + std::to_string(length) + " characters was given");
    else
        report(std::string{"The text is: "} + answer.data());
}

}  // namespace

void showInformation()
{
    guiInfoBox("kitegui shows plain messages\nin as many lines as it takes.");
    report("The information was read");
}

void showError()
{
    guiErrorBox("This is how a mistake is reported.");
    report("The error was read");
}

void showTip()
{
    report("The note", guiTipBox("A note at the pointer:\nclick, or move over it"));
}

void askOkCancel()
{
    report("OK or Cancel", guiOkCancelBox("Send all 12 letters now?"));
}

void askYesNo()
{
    report("Yes or No", guiYesNoBox("Delete the file?"));
}

void askYesNoCancel()
{
    report("Yes, No or Cancel", guiYesNoCancelBox("Save the changes before leaving?"));
}

void askText()
{
    ask("Your name:", "Ada", false);
}

void askHiddenText()
{
    ask("Your password:", "", true);
}

void nestBoxes()
{
    if (guiYesNoBox("Open another box on top of this answer?") == GUI_YES)
        report("The second box", guiOkCancelBox("Boxes nest as deep as you like."));
    else
        report("No second box");
}

void showAbout()
{
    guiInfoBox(
        "The tour of kitegui\n\nEvery menu item is one feature of the library;\nthe buttons of the "
        "toolbar are commands of the menus.");
    report("Now you know");
}

}  // namespace tour
