// startup_bench.cpp: from nothing to a painted frame.

#include <X11/Intrinsic.h>
#include <benchmark/benchmark.h>
#include <kitegui.h>

#include "bare_frame.h"
#include "measured.h"

namespace {

using bench::Measured;

Measured* measured;  // the start-up that the handler below ends

void endWhenPainted(XtPointer, XtIntervalId*)
{
    Widget const text = XtNameToWidget(guiGetTopWnd(), "*v_text");
    bench::processUntilPainted(text);
    measured->end(XtDisplay(text));
    guiClose(0);
}

int handle(int event, int, int, int)
{
    if (event == GUI_EVENT_INIT)
        XtAppAddTimeOut(XtWidgetToApplicationContext(guiGetTopWnd()), 0, endWhenPainted, nullptr);
    return 0;
}

void startUpLibrary(benchmark::State& state)
{
    Measured measurement{state};
    measured = &measurement;
    for ([[maybe_unused]] auto iteration : state) {
        measurement.begin();
        guiInit(nullptr);
        guiStart(handle);
    }
    measurement.report();
}

void startUpBare(benchmark::State& state)
{
    Measured measurement{state};
    for ([[maybe_unused]] auto iteration : state) {
        measurement.begin();
        bench::BareFrame frame = bench::openBareFrame();
        bench::processUntilPainted(frame.text);
        measurement.end(frame.display);
        bench::closeBareFrame(frame);
    }
    measurement.report();
}

}  // namespace

BENCHMARK(startUpBare)->Name("start-up/bare")->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(startUpLibrary)->Name("start-up/kitegui")->UseManualTime()->Unit(benchmark::kMillisecond);
