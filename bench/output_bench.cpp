// output_bench.cpp: the Output area written and read line by line.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <string>

namespace {

// Seconds that a worker has taken; below 0 when it failed.
double secondsOf(const std::string& arguments)
{
    std::FILE* const worker = popen((OUTPUT_WORKER " " + arguments).c_str(), "r");
    double seconds = -1;
    if (worker && std::fscanf(worker, "%lf", &seconds) != 1) seconds = -1;
    if (worker) pclose(worker);
    return seconds;
}

void run(benchmark::State& state, const std::string& arguments)
{
    for ([[maybe_unused]] auto iteration : state) {
        const double seconds = secondsOf(arguments);
        if (seconds < 0) {
            state.SkipWithError("the worker has failed");
            break;
        }
        state.SetIterationTime(seconds);
    }
}

}  // namespace

BENCHMARK_CAPTURE(run, write_bare, "bare write")
    ->Name("write 100,000 lines/bare")
    ->UseManualTime()
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(run, write_library, "kitegui write")
    ->Name("write 100,000 lines/kitegui")
    ->UseManualTime()
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(run, read_bare, "bare read")
    ->Name("read 100,000 lines/bare")
    ->UseManualTime()
    ->Iterations(10)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(run, read_library, "kitegui read")
    ->Name("read 100,000 lines/kitegui")
    ->UseManualTime()
    ->Iterations(10)
    ->Unit(benchmark::kMillisecond);
