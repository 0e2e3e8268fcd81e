#include "toolkit/x_error_trap.h"

namespace kite {

namespace {

int ignoreError(Display*, XErrorEvent*)
{
    return 0;
}

}  // namespace

XErrorTrap::XErrorTrap(Display* display) : display_(display)
{
    XSync(display_, False);  // errors of earlier requests are not ours to swallow
    previous_ = XSetErrorHandler(ignoreError);
}

XErrorTrap::~XErrorTrap()
{
    XSync(display_, False);
    XSetErrorHandler(previous_);
}

}  // namespace kite
