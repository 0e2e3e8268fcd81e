// measured.h: time and X traffic of work that begins and ends anywhere in an iteration.

#pragma once

#include <X11/Xlib.h>
#include <benchmark/benchmark.h>

#include <chrono>

namespace bench {

// The counters are totals that the framework divides by the iterations.
class Measured {
public:
    explicit Measured(benchmark::State& state) : state_(state) {}

    // Without a display yet, all of its requests count.
    void begin(Display* display = nullptr);
    void end(Display* display);
    void report();

private:
    using Clock = std::chrono::steady_clock;

    benchmark::State& state_;
    Clock::time_point begun_;
    long roundTrips_ = 0;
    double requests_ = 0;
};

}  // namespace bench
