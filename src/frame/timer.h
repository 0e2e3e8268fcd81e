// timer.h: the one periodic timer.

#pragma once

#include <X11/Intrinsic.h>

namespace kite::periodicTimer {

// Takes the timer away for good: the next one is up to the host.
void stop();

// The same, if it runs in this application context, which is about to go.
void stopIn(XtAppContext application);

}  // namespace kite::periodicTimer
