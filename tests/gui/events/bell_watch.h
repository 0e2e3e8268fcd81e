// bell_watch.h: hears the bell of the test's display.

#pragma once

#include <X11/Xlib.h>

#include <vector>

#include "pump.h"

namespace kite::testing {

class BellWatch {
public:
    // From now on. The volume of the display's bell is set to 0, on top of which programs ask for theirs.
    BellWatch();
    ~BellWatch();
    BellWatch(const BellWatch&) = delete;
    BellWatch& operator=(const BellWatch&) = delete;

    // The volumes in per cent of all that has rung until now.
    const std::vector<int>& rings();

    // False when it did not ring so often.
    bool waitForRings(int count);

private:
    Display* display_;
    int firstEvent_ = 0;  // of the keyboard extension
    std::vector<int> rings_;
};

}  // namespace kite::testing
