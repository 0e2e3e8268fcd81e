// tour: shows every feature of the library, one command each, and says in the status line what came of
// it.

#include <kitegui.h>

#include "commands.h"
#include "dialogs.h"
#include "output.h"

namespace {

int handle(int event, int id, int a, int)
{
    if (event == GUI_EVENT_INIT && id == 0) tour::begin();
    if (event == GUI_EVENT_COMMAND) tour::runCommand(id, a);
    if (event == GUI_EVENT_TIMER) tour::tick();
    if (event == GUI_EVENT_DROP) tour::openDroppedFile();
    return 0;
}

}  // namespace

int main()
{
    guiSetAppInfo("kitegui tour", "tour");
    guiInit(tour::handleReminder);  // of dialogs without a handler of their own
    tour::buildMenuBar();
    tour::buildToolbar();
    return guiStart(handle);
}
