// log_bench.cpp: writing the log, which opens and closes its file around every line.

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <kitegui.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <string>

namespace {

constexpr int kLines = 10000;
constexpr char kLine[] = "A line of forty characters, as hosts do.";

class TemporaryFile {
public:
    TemporaryFile() { close(mkstemp(path_.data())); }
    ~TemporaryFile() { unlink(path()); }

    const char* path() const { return path_.c_str(); }
    void empty() const { static_cast<void>(truncate(path(), 0) == 0); }

private:
    std::string path_ = "/tmp/kitegui-bench-XXXXXX";
};

void writeLog(benchmark::State& state)
{
    const TemporaryFile file;
    LogFile log;
    for ([[maybe_unused]] auto iteration : state) {
        log.start(file.path(), 1);
        for (int line = 0; line < kLines; ++line) log.write(kLine, 1);
    }
}

// The same bytes by the system calls alone.
void appendLine(const char* path)
{
    char line[sizeof kLine + 1];
    std::memcpy(line, kLine, sizeof kLine);
    line[sizeof kLine - 1] = '\n';
    const int file = open(path, O_WRONLY | O_APPEND | O_CREAT, 0666);
    if (write(file, line, sizeof kLine) < 0) std::abort();
    close(file);
}

void writeBare(benchmark::State& state)
{
    const TemporaryFile file;
    for ([[maybe_unused]] auto iteration : state) {
        file.empty();
        for (int line = 0; line < kLines; ++line) appendLine(file.path());
    }
}

}  // namespace

BENCHMARK(writeBare)->Name("log 10,000 lines/bare")->Unit(benchmark::kMillisecond);
BENCHMARK(writeLog)->Name("log 10,000 lines/kitegui")->Unit(benchmark::kMillisecond);
