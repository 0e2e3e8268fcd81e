// host_application.h: an Xt application that the host has made itself, with a display of its own.

#pragma once

#include <X11/Intrinsic.h>

namespace kite::testing {

struct HostApplication {
    XtAppContext context = nullptr;
    Widget shell = nullptr;  // not realized yet
};

HostApplication openHostApplication();

}  // namespace kite::testing
