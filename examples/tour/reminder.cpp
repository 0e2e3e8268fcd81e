// reminder.cpp: a dialog that comes when the command that has asked for it is done.

#include "dialogs.h"

namespace tour {

namespace {

constexpr int kClose = GUI_CANCEL_BUTTON;

}  // namespace

void askForReminder()
{
    guiDialog("A reminder");
    guiLabel(GUI_ANONYMOUS, 0, 0, 120, "The command that asked for this is done.");
    guiButton(kClose, 2, 36, 48, "Close", 1);
    guiStartDialog();
}

int handleReminder(int event, int id, int, int)
{
    if (event == GUI_EVENT_COMMAND && id == kClose) guiClose(0);
    return 0;
}

}  // namespace tour
