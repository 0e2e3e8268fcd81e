#include "toolkit/nested_loop.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "toolkit/never_destroyed.h"

namespace kite {

namespace {

int running = 0;  // loops, one inside the other
int begun = 0;

struct Waiting {
    int most;
    std::function<void()> work;
};
std::vector<Waiting>& waiting = neverDestroyed<std::vector<Waiting>>();

LoopObserver observer{[] {}, [] {}};

// Of an event that no server sends: neither X nor its extensions use the number.
constexpr int kWork = 63;

const std::function<void()>* toDo = nullptr;  // handed over by asEvent

Boolean doWork(XEvent*)
{
    (*std::exchange(toDo, nullptr))();
    return True;
}

// What was waiting for so few loops. A work may let others wait.
void doWhatIsDue()
{
    const auto due = std::stable_partition(waiting.begin(), waiting.end(),
                                           [](const Waiting& one) { return running > one.most; });
    const std::vector<Waiting> works{due, waiting.end()};
    waiting.erase(due, waiting.end());
    for (const Waiting& one : works) one.work();
}

}  // namespace

// Xt destroys at the end of an event.
void asEvent(Display* display, const std::function<void()>& work)
{
    XtSetEventDispatcher(display, kWork, doWork);
    XEvent event{};
    event.type = kWork;
    event.xany.display = display;
    event.xany.serial = LastKnownRequestProcessed(display);
    toDo = &work;
    XtDispatchEvent(&event);
}

bool isProcessingEvents()
{
    return running > 0;
}

int loopsRunning()
{
    return running;
}

void whenLoopsAre(int most, const std::function<void()>& work)
{
    waiting.push_back({most, work});
}

int loopsBegun()
{
    return begun;
}

void observeLoops(const LoopObserver& newObserver)
{
    observer = newObserver;
}

ProcessingEvents::ProcessingEvents()
{
    ++begun;
    ++running;
    observer.begins();
}

ProcessingEvents::~ProcessingEvents()
{
    --running;
    doWhatIsDue();
    observer.ended();
}

}  // namespace kite
