#include "in_frame.h"

#include <kitegui.h>

namespace bench {

namespace {

const std::function<void()>* toDo;

// From a handler, where hosts build their dialogs; by then the frame is painted.
int handle(int event, int, int, int)
{
    if (event == GUI_EVENT_INIT) guiTimer(100);
    if (event != GUI_EVENT_TIMER || !toDo) return 0;
    const std::function<void()>* const work = toDo;
    toDo = nullptr;
    guiTimer(0);
    (*work)();
    guiClose(0);
    return 0;
}

}  // namespace

void runInFrame(const std::function<void()>& work)
{
    toDo = &work;
    guiInit(nullptr);
    guiStart(handle);
}

}  // namespace bench
