// dialog_memory_bench.cpp: what stays in memory of a dialog that is opened and closed again and again.

#include <benchmark/benchmark.h>
#include <kitegui.h>
#include <unistd.h>

#include <fstream>

#include "bare_dialog.h"
#include "bare_frame.h"
#include "in_dialog.h"
#include "in_frame.h"
#include "library_dialog.h"

namespace {

constexpr int kControls = 50;

struct Openings {
    int warmUp;  // after which all is in place
    int all;
};
constexpr Openings kOfSimpleKinds{200, 1000};
constexpr Openings kOfAllKinds{100, 500};

double residentKiB()
{
    long pages = 0;
    std::ifstream{"/proc/self/statm"} >> pages >> pages;
    return static_cast<double>(pages) * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1024;
}

template <typename OpenAndClose>
void measureGrowth(benchmark::State& state, const Openings& openings, OpenAndClose openAndClose)
{
    for ([[maybe_unused]] auto iteration : state) {
        for (int i = 0; i < openings.warmUp; ++i) openAndClose();
        const double before = residentKiB();
        for (int i = openings.warmUp; i < openings.all; ++i) openAndClose();
        state.counters["growth_KiB"] = residentKiB() - before;
    }
}

void buildSimpleKinds()
{
    guiUseAbsPos(1);
    for (int number = 0; number < kControls; ++number) bench::addControl(number);
}

void openInLibrary()
{
    bench::runInDialog({buildSimpleKinds, {}, {}});
}

void growthLibrary(benchmark::State& state)
{
    bench::runInFrame([&] { measureGrowth(state, kOfSimpleKinds, openInLibrary); });
}

void buildAllKinds()
{
    guiLabel(1, 0, 0, 60, "Label");
    guiEdit(2, 1, 0, 60, 0, 0);
    guiButton(3, 2, 0, 60, "Button", 0);
    guiCheck(4, 3, 0, 60, "Check");
    guiRadio(5, 4, 0, 60, "Radio");
    guiChoice(6, 5, 0, 60);
    guiList(7, 6, 3, 0, 60, GUI_EXTENDED);
    guiText(8, 9, 3, 0, 60, 0);
    guiLine(9, 12, 1, 0, 60);
    guiImage(10, 13, 2, 0, 60, 1);
    guiCombo(12, 0, 70, 60);
    guiProgress(13, 1, 1, 70, 60);
    guiTree(14, 2, 5, 70, 60);
    guiSlider(15, 7, 1, 70, 60);
    guiSpin(16, 8, 70, 60);
}

void fillAllKinds()
{
    for (int item = 0; item < 20; ++item) {
        for (const int id : {6, 7, 12}) guiAppendItemInt(id, item);
        guiAppendLine(8, "A line");
        guiAddTree(14, item / 4, item + 1, "Item");
    }
    guiSetTextAtt(1, 0, "Times");
}

void growthOfAllKinds(benchmark::State& state)
{
    bench::runInFrame([&] {
        measureGrowth(state, kOfAllKinds, [] {
            bench::runInDialog({buildAllKinds, fillAllKinds, {}});
        });
    });
}

void growthBare(benchmark::State& state)
{
    bench::BareFrame frame = bench::openBareFrame();
    bench::processUntilAllPainted(frame.text);
    measureGrowth(state, kOfSimpleKinds, [&] {
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
BENCHMARK(growthOfAllKinds)
    ->Name("dialog of all kinds opened 500 times/kitegui")
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
