#include "click_spacing.h"

#include <X11/Intrinsic.h>

#include <chrono>

#include "connection.h"
#include "pump.h"
#include "toolkit.h"

namespace kite::testing {

namespace {

using Clock = std::chrono::steady_clock;

constexpr milliseconds kToolkitDefault{200};
constexpr milliseconds kMargin{20};
constexpr unsigned kLastRealButton = 3;  // the wheel's have no double click

struct {
    unsigned button = 0;
    Window window = 0;
    Clock::time_point time;
} last;  // set by rememberClick

milliseconds multiClickTime()
{
    Display* const display = toolkit::display();
    return kMargin + (display ? milliseconds{XtGetMultiClickTime(display)} : kToolkitDefault);
}

Window windowBelowPointer()
{
    const std::vector<Window> windows = windowsAt(pointerPosition());
    return windows.empty() ? rootWindow() : windows.back();
}

}  // namespace

void awaitEndOfClick(unsigned button)
{
    if (button > kLastRealButton || button != last.button || windowBelowPointer() != last.window)
        return;
    const auto end = last.time + multiClickTime();
    pumpUntil([&] { return Clock::now() >= end; });
}

void rememberClick(unsigned button)
{
    last = {button, windowBelowPointer(), Clock::now()};
}

}  // namespace kite::testing
