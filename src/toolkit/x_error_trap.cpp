#include "toolkit/x_error_trap.h"

#include <utility>

namespace kite {

namespace {

XErrorTrap* innermost = nullptr;  // of those that exist

}  // namespace

// No round trip at the beginning: a request's number tells whose it is.
XErrorTrap::XErrorTrap(Display* display)
    : display_(display), firstRequest_(NextRequest(display)), nextUnchecked_(firstRequest_),
      outer_(std::exchange(innermost, this)), previous_(XSetErrorHandler(noteError))
{
}

bool XErrorTrap::takes(Display* display, const XErrorEvent& error) const
{
    return display == display_ && error.serial >= firstRequest_;
}

int XErrorTrap::noteError(Display* display, XErrorEvent* error)
{
    XErrorTrap* trap = innermost;
    while (!trap->takes(display, *error) && trap->outer_) trap = trap->outer_;
    if (!trap->takes(display, *error)) return trap->previous_(display, error);
    trap->isCaught_ = true;
    return 0;
}

// A server that has answered the latest request has reported the errors of all before.
void XErrorTrap::await() const
{
    if (nextUnchecked_ == NextRequest(display_)) return;
    const bool isAnswered = LastKnownRequestProcessed(display_) + 1 == NextRequest(display_);
    if (!isAnswered) XSync(display_, False);
    nextUnchecked_ = NextRequest(display_);
}

bool XErrorTrap::hasCaught() const
{
    await();
    return isCaught_;
}

XErrorTrap::~XErrorTrap()
{
    await();
    XSetErrorHandler(previous_);
    innermost = outer_;
}

}  // namespace kite
