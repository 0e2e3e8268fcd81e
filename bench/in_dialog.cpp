#include "in_dialog.h"

#include <X11/Intrinsic.h>
#include <kitegui.h>

#include "bare_frame.h"

namespace bench {

namespace {

const DialogWork* running;

void workWhenPainted(XtPointer, XtIntervalId*)
{
    processUntilAllPainted(guiGetTopWnd());
    if (running->work) running->work();
    guiClose(0);
}

int handle(int event, int, int, int)
{
    if (event != GUI_EVENT_INIT) return 0;
    if (running->fill) running->fill();
    XtAppAddTimeOut(XtWidgetToApplicationContext(guiGetTopWnd()), 0, workWhenPainted, nullptr);
    return 0;
}

}  // namespace

void runInDialog(const DialogWork& dialog)
{
    running = &dialog;
    guiDialog("Dialog");
    dialog.build();
    guiRunDialog(handle);
}

}  // namespace bench
