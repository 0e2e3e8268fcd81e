// menu_bar.cpp: menus are opened and closed, one inside the other.

#include <Xm/CascadeBG.h>
#include <Xm/RowColumn.h>
#include <kitegui.h>

#include "boxes/misuse.h"
#include "commands/command_checks.h"
#include "commands/command_room.h"
#include "commands/menu_levels.h"
#include "frame/dispatcher.h"
#include "frame/main_frame.h"

namespace kite::commands {

namespace {

// What the status line says belongs to the last command; the user goes for the next one.
void clearStatusLine(Widget, XtPointer, XtPointer)
{
    guiSetStatusLine("");
}

Widget createMenu(Widget parent, const char* name, bool isOnMenuBar)
{
    Widget const pulldown = XmCreatePulldownMenu(parent, const_cast<char*>("v_menu"), nullptr, 0);
    if (isOnMenuBar) XtAddCallback(pulldown, XmNmapCallback, clearStatusLine, nullptr);
    const MenuLabel label{name};
    ArgumentList arguments;
    label.addTo(arguments, parent);
    arguments.set(XmNsubMenuId, pulldown);
    Widget const button = XtCreateManagedWidget("v_mbtn", xmCascadeButtonGadgetClass, parent,
                                                arguments.data(), arguments.size());
    static_cast<void>(button);
    return pulldown;
}

}  // namespace

}  // namespace kite::commands

using namespace kite;
using namespace kite::commands;

int guiMenu(const char* name)
{
    if (!frame::widgets().mainWindow) return GUI_FAILED;
    if (!isConstructing()) guiRestart();
    dispatcher::noteBuilding();
    if (room().level == kDeepestLevel) return reportMisuse("Menu: too many levels of menu");
    if (isTooLong(name, kLongestName)) return reportMisuse("Menu: invalid name");
    Widget const parent = currentMenu();
    if (!parent) return GUI_FAILED;
    openMenu(createMenu(parent, name, room().level == 0));
    return room().level;
}

int guiMenuEnd(void)
{
    if (!isConstructing()) return reportMisuse("MenuEnd: cannot be used now");
    if (room().level == 0) return reportMisuse("MenuEnd: already on the menu bar level");
    closeMenu();
    return room().level;
}
