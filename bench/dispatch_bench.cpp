// dispatch_bench.cpp: what an event costs on its way to a handler.

#include <X11/Intrinsic.h>
#include <X11/StringDefs.h>
#include <Xm/Xm.h>
#include <benchmark/benchmark.h>
#include <kitegui.h>

namespace {

constexpr int kEvents = 100000;

long received;
benchmark::State* running;

int count(int, int, int, int)
{
    return static_cast<int>(++received);
}

// The floor: read the handler where the library must read it, and call it.
void callThroughResource(benchmark::State& state)
{
    Widget const window = guiGetTopWnd();
    for ([[maybe_unused]] auto iteration : state)
        for (int event = 0; event < kEvents; ++event) {
            XtPointer handler = nullptr;
            XtVaGetValues(window, XmNuserData, &handler, nullptr);
            reinterpret_cast<GuiHandler>(handler)(GUI_EVENT_COMMAND, 1, 0, 0);
        }
}

int raiseMany(GuiHandler dispatch)
{
    for ([[maybe_unused]] auto iteration : *running)
        for (int event = 0; event < kEvents; ++event) dispatch(GUI_EVENT_COMMAND, 1, 0, 0);
    return 0;
}

void callThroughLibrary(benchmark::State& state)
{
    running = &state;
    guiRunPlugin(raiseMany);
}

void (*measure)(benchmark::State&);

int start(int event, int, int, int)
{
    if (event != GUI_EVENT_INIT) return 0;
    XtAppAddTimeOut(
        XtWidgetToApplicationContext(guiGetTopWnd()), 0,
        [](XtPointer, XtIntervalId*) {
            XtVaSetValues(guiGetTopWnd(), XmNuserData, reinterpret_cast<XtPointer>(count), nullptr);
            measure(*running);
            guiClose(0);
        },
        nullptr);
    return 0;
}

void insideFrame(benchmark::State& state, void (*measured)(benchmark::State&))
{
    running = &state;
    measure = measured;
    guiInit(nullptr);
    guiStart(start);
    state.SetItemsProcessed(state.iterations() * kEvents);
}

void dispatchBare(benchmark::State& state)
{
    insideFrame(state, callThroughResource);
}

void dispatchLibrary(benchmark::State& state)
{
    insideFrame(state, callThroughLibrary);
}

}  // namespace

BENCHMARK(dispatchBare)->Name("dispatch 100,000 events/bare")->Unit(benchmark::kMillisecond);
BENCHMARK(dispatchLibrary)->Name("dispatch 100,000 events/kitegui")->Unit(benchmark::kMillisecond);
