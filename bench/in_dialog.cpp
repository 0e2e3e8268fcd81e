#include "in_dialog.h"

#include <X11/Intrinsic.h>
#include <kitegui.h>

#include "bare_frame.h"
#include "in_frame.h"
#include "measured.h"

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

void measureInDialog(benchmark::State& state, const MeasuredWork& measured)
{
    Measured measurement{state};
    const auto work = [&] {
        Display* const display = XtDisplay(guiGetTopWnd());
        for ([[maybe_unused]] auto iteration : state) {
            if (measured.before) measured.before();
            processAll(guiGetTopWnd());
            measurement.begin(display);
            measured.work();
            measurement.end(display);
        }
    };
    runInFrame([&] { runInDialog({measured.build, measured.fill, work}); });
    measurement.report();
}

}  // namespace bench
