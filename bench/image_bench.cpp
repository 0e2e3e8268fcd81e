// image_bench.cpp: from a picture file in the disk cache to a pixmap that the server has, next to reading
// the same bytes and sending pixels that are ready.

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <random>
#include <string>
#include <vector>

#include "images/image_loader.h"
#include "toolkit/pixmaps.h"
#include "x_traffic.h"

namespace {

constexpr int kWidth = 1920;
constexpr int kHeight = 1080;

using Random = std::minstd_rand;

void append32(std::string& bytes, std::uint32_t value)
{
    for (int i = 0; i < 4; ++i) bytes += static_cast<char>(value >> 8 * i & 0xFF);
}

std::string header(int bits, std::uint32_t compression, std::uint32_t paletteBytes)
{
    constexpr std::uint32_t kHeaderBytes = 54;
    std::string bytes = "BM";
    append32(bytes, 0x7FFFFFFF);  // the file size, of which readers only want it to be large
    append32(bytes, 0);
    append32(bytes, kHeaderBytes + paletteBytes);
    append32(bytes, 40);
    append32(bytes, kWidth);
    append32(bytes, kHeight);
    append32(bytes, 1 | static_cast<std::uint32_t>(bits) << 16);
    append32(bytes, compression);
    for (int i = 0; i < 5; ++i) append32(bytes, 0);
    return bytes;
}

std::string noise()
{
    std::string bytes = header(24, 0, 0);
    Random random{1};
    for (int i = 0; i < kWidth * kHeight * 3; ++i) bytes += static_cast<char>(random() >> 8);
    return bytes;
}

// Runs of one colour and runs of single pixels in turn, of 1 to 32 pixels: much shorter ones than those
// of drawings.
std::string runs()
{
    constexpr int kColours = 256;
    std::string bytes = header(8, 1, kColours * 4);
    Random random{1};
    for (int i = 0; i < kColours; ++i) append32(bytes, static_cast<std::uint32_t>(random()));
    for (int y = 0; y < kHeight; ++y) {
        for (int left = kWidth; left > 0;) {
            const int count = std::min(left, 1 + static_cast<int>(random() >> 8 & 31));
            left -= count;
            const bool isSingle = count > 2 && (random() >> 8 & 1) != 0;
            bytes += static_cast<char>(isSingle ? 0 : count);
            if (isSingle) bytes += static_cast<char>(count);
            const int values = isSingle ? count + count % 2 : 1;
            for (int i = 0; i < values; ++i) bytes += static_cast<char>(random() >> 8);
        }
        bytes += std::string(2, '\0');
    }
    return bytes + std::string("\0\1", 2);
}

class TemporaryFile {
public:
    explicit TemporaryFile(const std::string& contents)
    {
        close(mkstemps(path_.data(), 4));
        std::ofstream{path_, std::ios::binary} << contents;
    }
    ~TemporaryFile() { unlink(path_.c_str()); }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    const std::string& path() const { return path_; }

private:
    std::string path_ = "/tmp/kitegui-bench-XXXXXX.bmp";
};

// Known to the toolkit: the loader asks through it.
class Connection {
public:
    Connection()
    {
        XtToolkitInitialize();
        int count = 0;
        display_ = XtOpenDisplay(XtCreateApplicationContext(), nullptr, "bench", "Bench", nullptr,
                                 0, &count, nullptr);
    }
    ~Connection() { XtDestroyApplicationContext(XtDisplayToApplicationContext(display_)); }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    Display* display() const { return display_; }
    Screen* screen() const { return XDefaultScreenOfDisplay(display_); }

private:
    Display* display_ = nullptr;
};

void reportRoundTrips(benchmark::State& state, long count)
{
    state.counters["round_trips"] =
        benchmark::Counter(static_cast<double>(count), benchmark::Counter::kAvgIterations);
}

void loadByLibrary(benchmark::State& state, std::string (*contents)())
{
    const TemporaryFile file{contents()};
    const Connection server;
    long roundTrips = -bench::roundTrips();
    for ([[maybe_unused]] auto iteration : state) {
        const auto picture = kite::images::load(server.screen(), file.path(), 0);
        XSync(server.display(), False);
        if (!picture) std::abort();
        kite::freePixmap(server.screen(), picture.pixmap);
    }
    reportRoundTrips(state, roundTrips + bench::roundTrips());
}

// Reading by the bare system call, into a buffer that is there.
std::size_t readAll(const std::string& path, std::vector<char>& buffer)
{
    std::FILE* const file = std::fopen(path.c_str(), "rb");
    std::setvbuf(file, nullptr, _IONBF, 0);
    const std::size_t count = std::fread(buffer.data(), 1, buffer.size(), file);
    std::fclose(file);
    return count;
}

void loadBare(benchmark::State& state, std::string (*contents)())
{
    const std::string bytes = contents();
    const TemporaryFile file{bytes};
    const Connection server;
    Display* const display = server.display();
    Screen* const screen = server.screen();
    std::vector<char> buffer(bytes.size());
    std::vector<char> pixels(std::size_t{4} * kWidth * kHeight, 'x');
    XImage* const image = XCreateImage(display, DefaultVisualOfScreen(screen),
                                       static_cast<unsigned>(DefaultDepthOfScreen(screen)), ZPixmap,
                                       0, pixels.data(), kWidth, kHeight, 32, 0);
    long roundTrips = -bench::roundTrips();
    for ([[maybe_unused]] auto iteration : state) {
        if (readAll(file.path(), buffer) != bytes.size()) std::abort();
        const Pixmap pixmap = XCreatePixmap(display, RootWindowOfScreen(screen), kWidth, kHeight,
                                            static_cast<unsigned>(DefaultDepthOfScreen(screen)));
        XPutImage(display, pixmap, DefaultGCOfScreen(screen), image, 0, 0, 0, 0, kWidth, kHeight);
        XSync(display, False);
        XFreePixmap(display, pixmap);
    }
    reportRoundTrips(state, roundTrips + bench::roundTrips());
    image->data = nullptr;
    XDestroyImage(image);
}

}  // namespace

BENCHMARK_CAPTURE(loadBare, noise, noise)
    ->Name("load 1920x1080 of 24 bits/bare")
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(loadByLibrary, noise, noise)
    ->Name("load 1920x1080 of 24 bits/kitegui")
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(loadBare, runs, runs)
    ->Name("load 1920x1080 of 8 bits in runs/bare")
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(loadByLibrary, runs, runs)
    ->Name("load 1920x1080 of 8 bits in runs/kitegui")
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
