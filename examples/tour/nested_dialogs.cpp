// nested_dialogs.cpp: a dialog that opens another one, and goes on with what that one answered.

#include <array>
#include <string>

#include "dialogs.h"
#include "report.h"

namespace tour {

namespace {

constexpr int kLongest = 64;
using Line = std::array<char, kLongest>;

Line town{"London"};

enum OuterControl { CloseOuter = GUI_CANCEL_BUTTON, Town = 1, Change };
enum InnerControl { Cancel = GUI_CANCEL_BUTTON, Field = 1, Ok };

// What is typed comes behind the town.
void beginInner()
{
    guiSetText(Field, town.data());
    guiSetPos(Field, guiGetTextLen(Field));
}

int handleInner(int event, int id, int, int)
{
    if (event == GUI_EVENT_INIT) beginInner();
    if (event != GUI_EVENT_COMMAND) return 0;
    if (id == Ok) guiGetText(Field, town.data(), kLongest);
    guiClose(id);
    return 0;
}

int changeTown()
{
    guiDialog("Change the town");
    guiLabel(GUI_ANONYMOUS, 0, 0, 24, "&Town:");
    guiEdit(Field, 0, 28, 84, 0, 0);
    guiButton(Ok, 2, 12, 40, "OK", 1);
    guiButton(Cancel, 2, 60, 40, "Cancel", 0);
    return guiRunDialog(handleInner);
}

void showTown()
{
    guiSetText(Town, town.data());
}

int handleOuter(int event, int id, int, int)
{
    if (event == GUI_EVENT_INIT) showTown();
    if (event != GUI_EVENT_COMMAND) return 0;
    if (id == Change && changeTown() == Ok) showTown();
    if (id == CloseOuter) guiClose(0);
    return 0;
}

}  // namespace

void showNestedDialogs()
{
    guiDialog("A customer");
    guiLabel(GUI_ANONYMOUS, 0, 0, 36, "Name:");
    guiLabel(GUI_ANONYMOUS, 0, 40, 90, "Ada Lovelace");
    guiLabel(GUI_ANONYMOUS, 1, 0, 36, "Town:");
    guiLabel(Town, 1, 40, 90, "");
    guiLine(GUI_ANONYMOUS, 2, 1, 0, 140);
    guiButton(Change, 3, 12, 52, "Change...", 1);
    guiButton(CloseOuter, 3, 76, 52, "Close", 0);
    runDialog(handleOuter);
    report(std::string{"The customer lives in "} + town.data());
}

}  // namespace tour
