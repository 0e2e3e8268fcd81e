// round_trips.h: counts what a program waits for its display.

#pragma once

#include <X11/Xlib.h>

#include <functional>

#include "bmp_file.h"

namespace kite::testing {

// Replies that this process waits for on the display while it runs the action.
int roundTripsDuring(Display* display, const std::function<void()>& action);

// Loads the picture and frees it.
int roundTripsToLoad(const BmpFile& file);

}  // namespace kite::testing
