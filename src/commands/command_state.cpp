// command_state.cpp: commands checked and enabled by id, wherever they are shown.

#include <Xm/ToggleB.h>
#include <kitegui.h>

#include "boxes/misuse.h"
#include "commands/command_events.h"
#include "commands/command_room.h"
#include "commands/toolbar_tips.h"

namespace kite::commands {

namespace {

int checkOf(const Command& command)
{
    return command.style == kCheck && XmToggleButtonGetState(command.widget.get()) ? 1 : 0;
}

void setCommandCheck(int id, bool isSet)
{
    const Command* const item = room().items.find(id);
    // Intended: a plain menu item speaks for the whole command, and hosts rely on its button staying
    // as it is.
    if (item && item->style == kPlain) return;
    if (item) setCheck(*item, isSet);
    if (const Command* const button = room().buttons.find(id)) setCheck(*button, isSet);
}

void enableCommand(int id, bool isEnabled)
{
    const auto sensitive = static_cast<Boolean>(isEnabled);
    if (const Command* const item = room().items.find(id))
        XtSetSensitive(item->widget.get(), sensitive);
    const Command* const button = room().buttons.find(id);
    if (!button) return;
    if (!isEnabled) forgetTipOf(button->widget.get());
    XtSetSensitive(button->widget.get(), sensitive);
}

}  // namespace

}  // namespace kite::commands

using namespace kite;
using namespace kite::commands;

int guiSetCommandCheck(int id, int state)
{
    if (isConstructing()) return reportMisuse("SetCommandCheck: still in constructor");
    setCommandCheck(id, state != 0);
    return 0;
}

int guiEnableCommand(int id, int enable)
{
    if (isConstructing()) return reportMisuse("EnableCommand: still in constructor");
    enableCommand(id, enable != 0);
    return 0;
}

int guiGetCommandCheck(int id)
{
    if (isConstructing()) return GUI_FAILED;
    const Command* command = room().items.find(id);
    if (!command) command = room().buttons.find(id);
    return command ? checkOf(*command) : 0;
}
