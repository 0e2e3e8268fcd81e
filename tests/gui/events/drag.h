// drag.h: something dragged from another program into the Output area.

#pragma once

#include <string>

#include "ignored_leaks.h"
#include "process.h"

namespace kite::testing {

// As slowly as a user: on each stage of the way it waits until both programs know of it. The source ends
// with its object. What it can offer is in drag_source.cpp.
class Drag {
public:
    Drag(const char* offer, const std::string& bytes);

    // Waits until the Output area has asked for the file name.
    bool waitUntilAsked();

private:
    // Motif's text forgets a record of a drop that brings no text.
    IgnoredLeaks ignoredLeaks_;
    Process source_;
};

}  // namespace kite::testing
