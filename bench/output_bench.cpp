// output_bench.cpp: the Output area written and read line by line.

#include <Xm/Text.h>
#include <benchmark/benchmark.h>
#include <kitegui.h>

#include <chrono>
#include <cstring>
#include <string>

#include "bare_frame.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kLines = 100000;
constexpr char kLine[] = "A line of forty characters, as hosts do.";
constexpr char kLineAndEnd[] = "A line of forty characters, as hosts do.\n";

double secondsSince(Clock::time_point start)
{
    return std::chrono::duration<double>(Clock::now() - start).count();
}

void makeEmpty(Widget text)
{
    char nothing[] = "";
    XmTextSetString(text, nothing);
    XSync(XtDisplay(text), False);
}

// What guiWriteLine says it does, in the toolkit's calls.
void writeBare(Widget text)
{
    char line[sizeof kLineAndEnd];
    std::memcpy(line, kLineAndEnd, sizeof line);
    for (int i = 0; i < kLines; ++i) {
        const XmTextPosition end = XmTextGetLastPosition(text);
        XmTextInsert(text, end, line);
        XmTextSetInsertionPosition(text, end + static_cast<XmTextPosition>(sizeof line - 1));
        XmTextClearSelection(text, XtLastTimestampProcessed(XtDisplay(text)));
    }
}

void writeLibrary(Widget)
{
    for (int i = 0; i < kLines; ++i) guiWriteLine(kLine);
    guiUserBreak();  // as a host does in a long loop: what waits is painted
}

void (*write)(Widget);

void measureWriting(benchmark::State& state, Widget text)
{
    for ([[maybe_unused]] auto iteration : state) {
        makeEmpty(text);
        const auto start = Clock::now();
        write(text);
        XSync(XtDisplay(text), False);
        state.SetIterationTime(secondsSince(start));
    }
}

// The plainest way: the text once, and every line of it copied.
void readBare(Widget text)
{
    char* const all = XmTextGetString(text);
    char line[100];
    for (const char* start = all; *start;) {
        const char* const end = std::strchr(start, '\n');
        const auto length = static_cast<std::size_t>(end - start);
        std::memcpy(line, start, length);
        line[length] = '\0';
        benchmark::DoNotOptimize(line);
        start = end + 1;
    }
    XtFree(all);
}

void readLibrary(Widget)
{
    char line[100];
    const int count = guiOutputLineCount();
    for (int i = 0; i < count; ++i) {
        guiOutputLine(i, line, sizeof line);
        benchmark::DoNotOptimize(line);
    }
}

void fill(Widget text)
{
    std::string all;
    for (int i = 0; i < kLines; ++i) all += kLineAndEnd;
    XmTextSetString(text, all.data());
}

void (*read)(Widget);

void measureReading(benchmark::State& state, Widget text)
{
    fill(text);
    for ([[maybe_unused]] auto iteration : state) {
        XmTextInsert(text, 0, const_cast<char*>("x"));  // nothing is known of it from before
        const auto start = Clock::now();
        read(text);
        state.SetIterationTime(secondsSince(start));
    }
}

using Measurement = void (*)(benchmark::State&, Widget);

benchmark::State* running;
Measurement measurement;

int handle(int event, int, int, int)
{
    if (event != GUI_EVENT_INIT) return 0;
    XtAppAddTimeOut(
        XtWidgetToApplicationContext(guiGetTopWnd()), 0,
        [](XtPointer, XtIntervalId*) {
            Widget const text = XtNameToWidget(guiGetTopWnd(), "*v_text");
            bench::processUntilPainted(text);
            measurement(*running, text);
            guiClose(0);
        },
        nullptr);
    return 0;
}

void insideLibrary(benchmark::State& state, Measurement measured)
{
    running = &state;
    measurement = measured;
    guiInit(nullptr);
    guiStart(handle);
}

void insideBareFrame(benchmark::State& state, Measurement measured)
{
    bench::BareFrame frame = bench::openBareFrame();
    bench::processUntilPainted(frame.text);
    measured(state, frame.text);
    bench::closeBareFrame(frame);
}

void writeLinesBare(benchmark::State& state)
{
    write = writeBare;
    insideBareFrame(state, measureWriting);
}

void writeLinesLibrary(benchmark::State& state)
{
    write = writeLibrary;
    insideLibrary(state, measureWriting);
}

void readLinesBare(benchmark::State& state)
{
    read = readBare;
    insideBareFrame(state, measureReading);
}

void readLinesLibrary(benchmark::State& state)
{
    read = readLibrary;
    insideLibrary(state, measureReading);
}

}  // namespace

// Both frames stand where the window manager put them, with 450 by 300 pixels, and are painted.
BENCHMARK(writeLinesBare)
    ->Name("write 100,000 lines/bare")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(writeLinesLibrary)
    ->Name("write 100,000 lines/kitegui")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(readLinesBare)
    ->Name("read 100,000 lines/bare")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(readLinesLibrary)
    ->Name("read 100,000 lines/kitegui")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
