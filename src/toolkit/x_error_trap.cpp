#include "toolkit/x_error_trap.h"

namespace kite {

namespace {

bool isCaught = false;  // since the latest trap was set

int noteError(Display*, XErrorEvent*)
{
    isCaught = true;
    return 0;
}

}  // namespace

XErrorTrap::XErrorTrap(Display* display) : display_(display)
{
    XSync(display_, False);  // errors of earlier requests are not ours to swallow
    previous_ = XSetErrorHandler(noteError);
    isCaught = false;
}

bool XErrorTrap::hasCaught() const
{
    XSync(display_, False);
    return isCaught;
}

XErrorTrap::~XErrorTrap()
{
    XSync(display_, False);
    XSetErrorHandler(previous_);
}

}  // namespace kite
