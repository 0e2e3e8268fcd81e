// frame_checks.h: what several tests of the frame look at.

#pragma once

#include <Xm/Xm.h>

#include <string>

#include "geometry.h"
#include "screen.h"

namespace kite::testing {

// The whole file; empty when there is none.
std::string contentsOf(const std::string& path);

// A log in which each date and time is replaced by "T".
std::string withoutTimes(const std::string& log);

// The full name of the font that the server gives for a pattern; empty when there is none.
std::string fontNameFor(const std::string& pattern);

// True when the screen comes to show something else there, although the application under test processes
// no event meanwhile.
bool changesByItself(const Rect& rect, const screen::Picture& before);

// Puts the place into the profile, as an earlier run has left it.
void savePlace(const Rect& place);

}  // namespace kite::testing
