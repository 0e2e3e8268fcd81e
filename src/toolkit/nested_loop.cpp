#include "toolkit/nested_loop.h"

#include <utility>

namespace kite {

namespace {

int running = 0;  // loops, one inside the other
int begun = 0;
LoopObserver observer{[] {}, [] {}};

// Of an event that no server sends: neither X nor its extensions use the number.
constexpr int kWork = 63;

const std::function<void()>* toDo = nullptr;  // handed over by asEvent

Boolean doWork(XEvent*)
{
    (*std::exchange(toDo, nullptr))();
    return True;
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
    observer.ended();
}

}  // namespace kite
