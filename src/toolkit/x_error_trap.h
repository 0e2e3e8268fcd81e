// x_error_trap.h: X errors of a few requests are noted instead of ending the process.

#pragma once

#include <X11/Xlib.h>

namespace kite {

// For requests on windows that belong to others and may be gone at any time, and for what the server may
// refuse.
class XErrorTrap {
public:
    explicit XErrorTrap(Display* display);
    ~XErrorTrap();

    // True when a request made since the beginning has failed: asks the server.
    bool hasCaught() const;

    XErrorTrap(const XErrorTrap&) = delete;
    XErrorTrap& operator=(const XErrorTrap&) = delete;

private:
    Display* display_;
    XErrorHandler previous_;
};

}  // namespace kite
