// printing_support.h: files that are printed, and the box meanwhile.

#pragma once

#include <functional>
#include <string>

#include "gui_test.h"

namespace kite::testing {

// Without the arguments that have no meaning.
int print(const char* file, int wrap = 0);

// What the host's service is called with for it, while the box is there; "" when it is not called.
std::string printed(const char* file, int wrap = 0);

// Looks around while the command runs.
int printWhile(const std::function<void()>& look, int result = 0);

// The widgets of the box; null when there is none.
Widget printShell();
Widget printBox();
Widget printLabel();

}  // namespace kite::testing
