// memory_bench.cpp: resident memory of the smallest host once its frame is painted.

#include <X11/Xlib.h>
#include <benchmark/benchmark.h>
#include <csignal>
#include <spawn.h>
#include <sys/wait.h>

#include <chrono>
#include <fstream>
#include <string>
#include <thread>

extern char** environ;

namespace {

constexpr auto kPoll = std::chrono::milliseconds(5);

class Program {
public:
    explicit Program(const char* path)
    {
        char* arguments[] = {const_cast<char*>(path), nullptr};
        posix_spawn(&process_, path, nullptr, nullptr, arguments, environ);
    }

    ~Program()
    {
        kill(process_, SIGKILL);
        waitpid(process_, nullptr, 0);
    }

    // In KiB, by field name; 0 when the process is gone.
    long status(const std::string& field) const
    {
        std::ifstream file{"/proc/" + std::to_string(process_) + "/status"};
        for (std::string line; std::getline(file, line);)
            if (line.starts_with(field)) return std::stol(line.substr(field.size() + 1));
        return 0;
    }

private:
    pid_t process_ = 0;
};

bool isSettled(const Program& program, long& before)
{
    const long now = program.status("VmRSS");
    const bool same = now > 0 && now == before;
    before = now;
    return same;
}

// Settled: the same size over half a second, long after the first paint.
long settledSize(const Program& program)
{
    long size = 0;
    for (int quiet = 0; quiet < 100; std::this_thread::sleep_for(kPoll))
        quiet = isSettled(program, size) ? quiet + 1 : 0;
    return size;
}

void residentSize(benchmark::State& state, const char* path)
{
    for ([[maybe_unused]] auto iteration : state) {
        const Program program{path};
        state.counters["resident_KiB"] = static_cast<double>(settledSize(program));
        state.counters["anonymous_KiB"] = static_cast<double>(program.status("RssAnon"));
    }
}

}  // namespace

BENCHMARK_CAPTURE(residentSize, bare, BARE_PROGRAM)->Name("memory hello/bare")->Iterations(1);
BENCHMARK_CAPTURE(residentSize, kitegui, HELLO_PROGRAM)
    ->Name("memory hello/kitegui")
    ->Iterations(1);
