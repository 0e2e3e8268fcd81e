#include "toolkit/nested_loop.h"

namespace kite {

namespace {

int running = 0;  // loops, one inside the other
int begun = 0;

// Of an event that no server sends: neither X nor its extensions use the number.
constexpr int kTurn = 63;

Boolean takeTurn(XEvent* event)
{
    XtAppProcessEvent(XtDisplayToApplicationContext(event->xany.display), XtIMAll);
    return True;
}

}  // namespace

// Around a turn of the loop Xt dispatches an event that is made up: it destroys at the end of an event.
void processEvent(Display* display)
{
    XtSetEventDispatcher(display, kTurn, takeTurn);
    XEvent turn{};
    turn.type = kTurn;
    turn.xany.display = display;
    turn.xany.serial = LastKnownRequestProcessed(display);
    XtDispatchEvent(&turn);
}

bool isProcessingEvents()
{
    return running > 0;
}

int loopsBegun()
{
    return begun;
}

ProcessingEvents::ProcessingEvents()
{
    ++begun;
    ++running;
}

ProcessingEvents::~ProcessingEvents()
{
    --running;
}

}  // namespace kite
