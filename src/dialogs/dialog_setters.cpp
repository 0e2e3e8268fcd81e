// dialog_setters.cpp: what hosts ask of a dialog besides its controls.

#include <Xm/Xm.h>
#include <kitegui.h>

#include "boxes/misuse.h"
#include "dialogs/building.h"
#include "dialogs/control_type.h"
#include "frame/top_window.h"
#include "toolkit/compound_string.h"

using namespace kite;

void guiSetDialogTitle(const char* title)
{
    Widget const dialog = topWindow();
    if (!dialog) return;
    if (dialog == mainWindow()) {
        reportMisuse("SetDialogTitle: no dialog");
        return;
    }
    const CompoundString text{title};
    XtVaSetValues(dialog, XmNdialogTitle, text.get(), nullptr);
}

int guiGetFocus(void)
{
    Widget const dialog = topWindow();
    if (!dialog || dialog == mainWindow()) return GUI_FAILED;
    Widget const focused = XmGetFocusWidget(dialog);
    if (!focused) return GUI_FAILED;
    // The cancel button, with its id 0, cannot be told from widgets that are no controls.
    const int id = Tag::of(focused).id() & kLargestId;
    return id != 0 ? id : GUI_FAILED;
}

void guiUseAbsPos(int on)
{
    building::useAbsolutePositions(on != 0);
}

void guiShowAllBorders(void)
{
    building::showBorders();
}

// Hosts call it; the toolkit has its own way to ask for help.
void guiContextHelp(void) {}
