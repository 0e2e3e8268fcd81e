// app_info.h: the application's title and name.

#pragma once

namespace kite {

// The default title of the frame and of all boxes, and the Xt application name.
const char* appTitle();

// The section of the user profile that holds every setting.
const char* appName();

}  // namespace kite
