#include <gtest/gtest.h>

#include "round_trips.h"

#include <X11/Xlibint.h>
#include <dlfcn.h>
#undef min
#undef max

#include <map>

#include "loaded.h"
#include "toolkit.h"
#include "toolkit/pixmaps.h"

namespace {

std::map<Display*, int> replies;

}  // namespace

// Every Xlib call that waits for the server goes through this function, which this program overrides.
extern "C" Status _XReply(Display* display, xReply* reply, int extra, Bool discard)
{
    using Function = Status (*)(Display*, xReply*, int, Bool);
    static const auto original = reinterpret_cast<Function>(dlsym(RTLD_NEXT, "_XReply"));
    ++replies[display];
    return original(display, reply, extra, discard);
}

namespace kite::testing {

int roundTripsDuring(Display* display, const std::function<void()>& action)
{
    const int before = replies[display];
    action();
    return replies[display] - before;
}

int roundTripsToLoad(const BmpFile& file)
{
    images::Picture picture;
    const int count =
        roundTripsDuring(toolkit::display(), [&] { picture = loadBytes(file.bytes()); });
    EXPECT_TRUE(picture);
    freePixmap(defaultScreen(), picture.pixmap);
    return count;
}

}  // namespace kite::testing
