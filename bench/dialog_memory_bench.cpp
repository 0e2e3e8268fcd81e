// dialog_memory_bench.cpp: what stays in memory of a dialog that is opened and closed again and again.

#include <benchmark/benchmark.h>
#include <kitegui.h>
#include <unistd.h>

#include <fstream>

#include "bare_dialog.h"
#include "bare_frame.h"
#include "in_frame.h"
#include "library_dialog.h"

namespace {

constexpr int kControls = 50;
constexpr int kWarmUp = 200;  // openings, after which all is in place
constexpr int kOpenings = 1000;

double residentKiB()
{
    long pages = 0;
    std::ifstream{"/proc/self/statm"} >> pages >> pages;
    return static_cast<double>(pages) * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1024;
}

template <typename OpenAndClose>
void measureGrowth(benchmark::State& state, OpenAndClose openAndClose)
{
    for ([[maybe_unused]] auto iteration : state) {
        for (int i = 0; i < kWarmUp; ++i) openAndClose();
        const double before = residentKiB();
        for (int i = kWarmUp; i < kOpenings; ++i) openAndClose();
        state.counters["growth_KiB"] = residentKiB() - before;
    }
}

void closeWhenPainted(XtPointer, XtIntervalId*)
{
    bench::processUntilAllPainted(guiGetTopWnd());
    guiClose(0);
}

int handle(int event, int, int, int)
{
    if (event == GUI_EVENT_INIT)
        XtAppAddTimeOut(XtWidgetToApplicationContext(guiGetTopWnd()), 0, closeWhenPainted, nullptr);
    return 0;
}

void openInLibrary()
{
    guiDialog("Dialog");
    guiUseAbsPos(1);
    for (int number = 0; number < kControls; ++number) bench::addControl(number);
    guiRunDialog(handle);
}

void growthLibrary(benchmark::State& state)
{
    bench::runInFrame([&] { measureGrowth(state, openInLibrary); });
}

void growthBare(benchmark::State& state)
{
    bench::BareFrame frame = bench::openBareFrame();
    bench::processUntilAllPainted(frame.text);
    measureGrowth(state, [&] {
        bench::BareDialog dialog{frame.mainWindow, frame.menuFont};
        for (int number = 0; number < kControls; ++number)
            dialog.add(bench::placeOf(number), bench::textOf(number).c_str());
        dialog.show();
        bench::processUntilAllPainted(dialog.board());
        dialog.destroy();
        bench::processAll(frame.mainWindow);
    });
    bench::closeBareFrame(frame);
}

}  // namespace

BENCHMARK(growthBare)
    ->Name("dialog opened 1,000 times/bare")
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(growthLibrary)
    ->Name("dialog opened 1,000 times/kitegui")
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
