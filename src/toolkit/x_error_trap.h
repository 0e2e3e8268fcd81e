// x_error_trap.h: X errors of a few requests are noted instead of ending the process.

#pragma once

#include <X11/Xlib.h>

namespace kite {

// For requests on windows that belong to others and may be gone at any time, and for what the server may
// refuse. Errors of requests made before go where they always go. Traps of one display end in the opposite
// order of their beginning.
class XErrorTrap {
public:
    explicit XErrorTrap(Display* display);
    ~XErrorTrap();

    // True when a request made since the beginning has failed: asks the server.
    bool hasCaught() const;

    XErrorTrap(const XErrorTrap&) = delete;
    XErrorTrap& operator=(const XErrorTrap&) = delete;

private:
    static int noteError(Display* display, XErrorEvent* error);
    bool takes(Display* display, const XErrorEvent& error) const;
    void await() const;

    Display* display_;
    unsigned long firstRequest_;           // the first one that is ours
    mutable unsigned long nextUnchecked_;  // of those before it the errors have arrived
    mutable bool isCaught_ = false;
    XErrorTrap* outer_;
    XErrorHandler previous_;
};

}  // namespace kite
