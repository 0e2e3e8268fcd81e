#include "x_traffic.h"

#include <X11/Xlib.h>
#include <X11/Xlibint.h>
#include <dlfcn.h>

namespace {

long replies = 0;

}  // namespace

// Every Xlib call that waits for the server goes through this function, which this program overrides.
extern "C" Status _XReply(Display* display, xReply* reply, int extra, Bool discard)
{
    using Function = Status (*)(Display*, xReply*, int, Bool);
    static const auto original = reinterpret_cast<Function>(dlsym(RTLD_NEXT, "_XReply"));
    ++replies;
    return original(display, reply, extra, discard);
}

namespace bench {

long roundTrips()
{
    return replies;
}

}  // namespace bench
