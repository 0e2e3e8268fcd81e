#include "commands/command_room.h"

#include "frame/dispatcher.h"
#include "frame/main_frame.h"
#include "toolkit/never_destroyed.h"

namespace kite::commands {

namespace {

Room& state = neverDestroyed<Room>();

// The menus that stand on the menu bar stay and go on raising their commands; they are the library's
// no more.
void forgetAll()
{
    state.items.clear();
    state.buttons.clear();
    state.level = 0;
    for (WidgetRef& menu : state.menus) menu.reset();
    state.accelerators = 0;
    state.separators = 0;
    state.hasGapBeforeNext = false;
}

}  // namespace

Room& room()
{
    static const bool isTold = (frame::whenCommandsGo(forgetAll), true);
    static_cast<void>(isTold);
    return state;
}

bool isConstructing()
{
    return !dispatcher::isStarted();
}

}  // namespace kite::commands
