// click_spacing.h: keeps clicks of a user who clicks once apart from double clicks.

#pragma once

namespace kite::testing {

// Waits as long as another press of the button would make a double click of the last one.
void awaitEndOfClick(unsigned button);

// A click or release of the button has just gone to the window below the pointer.
void rememberClick(unsigned button);

}  // namespace kite::testing
