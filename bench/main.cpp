// main.cpp: runs the benchmarks and prints one table of pairs: the library next to the same work done
// by hand, and the ratio. Every pair is measured in one run; options are Google Benchmark's.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace {

using Figures = std::map<std::string, double>;  // time, and the counters by name

struct Pair {
    std::string work;
    Figures bare, ours;
};

class PairReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs)
            if (!run.error_occurred && counts(run)) note(run);
    }

    void printPairs() const
    {
        std::puts("\n| work | figure | bare | kitegui | ratio |\n|---|---|---:|---:|---:|");
        for (const Pair& pair : pairs_)
            for (const auto& [figure, bare] : pair.bare) printPair(pair, figure, bare);
    }

private:
    // Of several repetitions the median, which comes after them.
    static bool counts(const Run& run)
    {
        return run.run_type == Run::RT_Iteration || run.aggregate_name == "median";
    }

    // Names are "work/bare" and "work/kitegui", perhaps with the framework's own words behind.
    void note(const Run& run)
    {
        const std::string& name = run.run_name.function_name;
        const auto slash = name.rfind('/');
        Pair& pair = pairFor(name.substr(0, slash));
        Figures& figures = name.substr(slash + 1) == "bare" ? pair.bare : pair.ours;
        for (const auto& [counter, value] : run.counters) figures[counter] = value;
        const std::string unit = benchmark::GetTimeUnitString(run.time_unit);
        figures["time, " + unit] = run.GetAdjustedRealTime();
    }

    Pair& pairFor(const std::string& work)
    {
        for (Pair& pair : pairs_)
            if (pair.work == work) return pair;
        return pairs_.emplace_back(Pair{work, {}, {}});
    }

    static void printPair(const Pair& pair, const std::string& figure, double bare)
    {
        const auto found = pair.ours.find(figure);
        if (found == pair.ours.end()) return;
        std::printf("| %s | %s | %.3f | %.3f | %.2f |\n", pair.work.c_str(), figure.c_str(), bare,
                    found->second, found->second / bare);
    }

    std::vector<Pair> pairs_;
};

}  // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    PairReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.printPairs();
}
