// menu_item.cpp: the items and separators of a menu.

#include <Xm/PushBG.h>
#include <Xm/SeparatoG.h>
#include <Xm/ToggleBG.h>
#include <kitegui.h>

#include <optional>

#include "boxes/misuse.h"
#include "commands/accelerator.h"
#include "commands/command_checks.h"
#include "commands/command_events.h"
#include "commands/command_room.h"
#include "commands/menu_levels.h"
#include "frame/dispatcher.h"

namespace kite::commands {

namespace {

// False after an error box.
bool isAcceptableItem(const char* name, char accel, int style, int id)
{
    const auto refuse = [](int) { return false; };
    if (!isConstructing()) return refuse(reportMisuse("MenuItem: cannot be used now"));
    if (room().level == 0)
        return refuse(reportMisuse("MenuItem: only menus can be placed on the menu bar"));
    if (isTooLong(name, kLongestName) || !*name)
        return refuse(reportMisuse("MenuItem: invalid name"));
    if (!isAcceptable({"MenuItem", "menu item", room().items, room().buttons}, id, style))
        return false;
    if (!isNoAccelerator(accel) && !isAccelerator(accel))
        return refuse(reportMisuse("MenuItem: invalid accelerator for id %d", id));
    if (room().items.isFull()) return refuse(reportMisuse("MenuItem: too many menu items"));
    return true;
}

Widget createItem(Widget menu, const char* name, Style style,
                  const std::optional<Accelerator>& accelerator)
{
    const MenuLabel label{name};
    ArgumentList arguments;
    label.addTo(arguments, menu);
    const CompoundString text{accelerator ? accelerator->text.c_str() : nullptr};
    if (accelerator) {
        arguments.set(XmNaccelerator, accelerator->translation.c_str());
        arguments.set(XmNacceleratorText, text.get());
    }
    return XtCreateManagedWidget(
        "v_mitem", style == kCheck ? xmToggleButtonGadgetClass : xmPushButtonGadgetClass, menu,
        arguments.data(), arguments.size());
}

// The result is the count before the box that tells of an accelerator too many: a handler that runs
// meanwhile may build as well.
int addItem(Widget menu, const char* name, char key, Style style, int id)
{
    const bool isWanted = isAccelerator(key);
    const bool isPossible = isWanted && room().accelerators < kMostAccelerators;
    std::optional<Accelerator> accelerator;
    if (isPossible) {
        accelerator = acceleratorFor(key);
        ++room().accelerators;
    }
    Widget const item = createItem(menu, name, style, accelerator);
    raiseFromItem(item, id, style);
    room().items.add(id, style, item);
    dispatcher::noteBuilding();
    const int count = room().items.count();
    if (isWanted && !isPossible) reportMisuse("MenuItem: too many accelerators - ignored");
    return count;
}

}  // namespace

}  // namespace kite::commands

using namespace kite;
using namespace kite::commands;

int guiMenuItem(const char* name, char accel, int style, int id)
{
    if (!isAcceptableItem(name, accel, style, id)) return GUI_FAILED;
    Widget const menu = currentMenu();
    return menu ? addItem(menu, name, accel, static_cast<Style>(style), id) : GUI_FAILED;
}

int guiMenuSeparator(void)
{
    if (!isConstructing()) return reportMisuse("MenuSeparator: cannot be used now");
    if (room().level == 0) return reportMisuse("MenuSeparator: cannot be placed on the menu bar");
    Widget const menu = currentMenu();
    if (!menu) return GUI_FAILED;
    XtVaCreateManagedWidget("v_msep", xmSeparatorGadgetClass, menu, nullptr);
    dispatcher::noteBuilding();
    return 0;
}
