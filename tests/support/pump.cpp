#include "pump.h"

#include <X11/Intrinsic.h>

#include <thread>

#include "last_words.h"
#include "toolkit.h"

namespace kite::testing {

namespace {

using Clock = std::chrono::steady_clock;

constexpr milliseconds kLookAgain{1};
constexpr int kMostRounds = 1000;  // of events that cause events: more than any sane program needs

void processOrDoze()
{
    speakLastWordsIfAsked();
    XtAppContext const context = toolkit::context();
    if (context && XtAppPending(context))
        XtAppProcessEvent(context, XtIMAll);
    else
        std::this_thread::sleep_for(kLookAgain);
}

bool processWaitingEvents()
{
    bool any = false;
    while (XtAppContext const context = toolkit::context()) {
        if (!(XtAppPending(context) & XtIMXEvent)) break;
        XtAppProcessEvent(context, XtIMXEvent);
        any = true;
    }
    return any;
}

}  // namespace

bool pumpUntil(const Condition& condition, milliseconds deadline)
{
    const auto end = Clock::now() + deadline;
    while (!condition()) {
        if (Clock::now() >= end) return condition();
        processOrDoze();
    }
    return true;
}

bool waitUntil(const Condition& condition, milliseconds deadline)
{
    const auto end = Clock::now() + deadline;
    while (!condition()) {
        if (Clock::now() >= end) return condition();
        std::this_thread::sleep_for(kLookAgain);
    }
    return true;
}

bool holdsFor(const Condition& condition, milliseconds time)
{
    return !pumpUntil([&] { return !condition(); }, time);
}

void settle()
{
    for (int round = 0; round < kMostRounds; ++round) {
        Display* const display = toolkit::display();
        if (!display) return;
        XSync(display, False);
        if (!processWaitingEvents()) return;
    }
}

}  // namespace kite::testing
