// startup_bench.cpp: from nothing to a painted frame.

#include <X11/Intrinsic.h>
#include <benchmark/benchmark.h>
#include <kitegui.h>

#include <chrono>

#include "bare_frame.h"
#include "x_traffic.h"

namespace {

using Clock = std::chrono::steady_clock;

// What one start-up cost: the counters are totals that the framework divides by the iterations.
class Measured {
public:
    explicit Measured(benchmark::State& state) : state_(state) {}

    void begin()
    {
        roundTrips_ -= bench::roundTrips();
        begun_ = Clock::now();
    }

    void end(Display* display)
    {
        state_.SetIterationTime(std::chrono::duration<double>(Clock::now() - begun_).count());
        roundTrips_ += bench::roundTrips();
        requests_ += static_cast<double>(NextRequest(display)) - 1;
    }

    void report()
    {
        using benchmark::Counter;
        state_.counters["round_trips"] =
            Counter(static_cast<double>(roundTrips_), Counter::kAvgIterations);
        state_.counters["requests"] = Counter(requests_, Counter::kAvgIterations);
    }

private:
    benchmark::State& state_;
    Clock::time_point begun_;
    long roundTrips_ = 0;
    double requests_ = 0;
};

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
