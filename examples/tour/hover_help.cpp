// hover_help.cpp: explains what the pointer rests on, and what F1 is pressed on.

#include <string>

#include "dialogs.h"
#include "report.h"

namespace tour {

namespace {

enum Control { Close = GUI_CANCEL_BUTTON, Title = 1, Field, Loud, Quiet, Repeat, Explanation };

constexpr int kWidth = 148;  // dialog units

const char* explanationOf(int control)
{
    switch (control) {
    case Title: return "What is played.";
    case Field: return "The title, as on the sleeve.";
    case Loud: return "For the whole house.";
    case Quiet: return "For headphones.";
    case Repeat: return "Begins anew at the end.";
    case Close: return "Leaves everything as it is.";
    default: return "";
    }
}

void build()
{
    guiDialog("Help at hand");
    guiLabel(Title, 0, 0, 24, "Piece:");
    guiEdit(Field, 0, 28, kWidth - 28, 0, 0);
    guiRadio(Loud, 1, 28, 48, "&Loud");
    guiRadio(Quiet, 1, 84, 48, "&Quiet");
    guiCheck(Repeat, 2, 28, 80, "&Repeat it");
    guiLine(GUI_ANONYMOUS, 3, 2, 0, kWidth);
    guiLabel(Explanation, 3, 6, kWidth - 12, "Rest the pointer on a control.");
    guiButton(Close, 5, 50, 48, "Close", 1);
}

void explain(const std::string& how, int control)
{
    guiSetText(Explanation, (how + explanationOf(control)).c_str());
}

int handle(int event, int id, int, int)
{
    if (event == GUI_EVENT_HOVER) explain("", id);
    if (event == GUI_EVENT_HELP) explain("Help: ", id);
    if (event == GUI_EVENT_COMMAND && id == Close) guiClose(0);
    return 0;
}

}  // namespace

void showHoverHelp()
{
    build();
    runDialog(handle);
    report("The help was closed");
}

}  // namespace tour
