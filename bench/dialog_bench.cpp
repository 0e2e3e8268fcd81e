// dialog_bench.cpp: dialogs from their first widget until they are painted.

#include <X11/Intrinsic.h>
#include <benchmark/benchmark.h>
#include <kitegui.h>

#include "bare_dialog.h"
#include "bare_frame.h"
#include "dialog_layout.h"
#include "in_frame.h"
#include "library_dialog.h"
#include "measured.h"

namespace {

using bench::Kind;
using bench::Measured;

Measured* measured;

void endWhenPainted(XtPointer, XtIntervalId*)
{
    Widget const board = guiGetTopWnd();
    bench::processUntilAllPainted(board);
    measured->end(XtDisplay(board));
    guiClose(0);
}

int handle(int event, int, int, int)
{
    if (event == GUI_EVENT_INIT)
        XtAppAddTimeOut(XtWidgetToApplicationContext(guiGetTopWnd()), 0, endWhenPainted, nullptr);
    return 0;
}

void openInLibrary(benchmark::State& state, int controls)
{
    bench::runInFrame([&] {
        Measured measurement{state};
        measured = &measurement;
        for ([[maybe_unused]] auto iteration : state) {
            measurement.begin(XtDisplay(guiGetTopWnd()));
            guiDialog("Dialog");
            guiUseAbsPos(1);
            for (int number = 0; number < controls; ++number) bench::addControl(number);
            guiRunDialog(handle);
        }
        measurement.report();
    });
}

void openBare(benchmark::State& state, int controls)
{
    bench::BareFrame frame = bench::openBareFrame();
    bench::processUntilAllPainted(frame.text);
    Measured measurement{state};
    for ([[maybe_unused]] auto iteration : state) {
        measurement.begin(frame.display);
        bench::BareDialog dialog{frame.mainWindow, frame.menuFont};
        for (int number = 0; number < controls; ++number)
            dialog.add(bench::placeOf(number), bench::textOf(number).c_str());
        dialog.show();
        bench::processUntilAllPainted(dialog.board());
        measurement.end(frame.display);
        dialog.destroy();
    }
    measurement.report();
    bench::closeBareFrame(frame);
}

constexpr int kFull = 32768;  // all that a dialog can have; it is not shown

void fillLibrary(benchmark::State& state)
{
    bench::runInFrame([&] {
        for ([[maybe_unused]] auto iteration : state) {
            Measured measurement{state};
            measurement.begin(XtDisplay(guiGetTopWnd()));
            guiDialog("Dialog");
            guiUseAbsPos(1);
            guiButton(0, 0, 0, 10, "Close", 0);
            for (int id = 1; id < kFull; ++id) guiLabel(id, 0, 0, 10, "Label");
            measurement.end(XtDisplay(guiGetTopWnd()));
            guiClose(0);
        }
    });
}

void fillBare(benchmark::State& state)
{
    bench::BareFrame frame = bench::openBareFrame();
    bench::processUntilAllPainted(frame.text);
    for ([[maybe_unused]] auto iteration : state) {
        Measured measurement{state};
        measurement.begin(frame.display);
        bench::BareDialog dialog{frame.mainWindow, frame.menuFont};
        for (int i = 0; i < kFull; ++i) dialog.add({Kind::Label, 0, 0}, "Label");
        measurement.end(frame.display);
        dialog.destroy();
    }
    bench::closeBareFrame(frame);
}

}  // namespace

BENCHMARK_CAPTURE(openBare, 1000, 1000)
    ->Name("dialog of 1,000 controls/bare")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(openInLibrary, 1000, 1000)
    ->Name("dialog of 1,000 controls/kitegui")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(openBare, 5000, 5000)
    ->Name("dialog of 5,000 controls/bare")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(openInLibrary, 5000, 5000)
    ->Name("dialog of 5,000 controls/kitegui")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(fillBare)
    ->Name("dialog of 32,768 controls, not shown/bare")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(fillLibrary)
    ->Name("dialog of 32,768 controls, not shown/kitegui")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
