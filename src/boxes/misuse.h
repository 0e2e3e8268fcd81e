// misuse.h: how wrong calls are reported.

#pragma once

namespace kite {

// Shows a message, formatted by printf's rules, with guiErrorBox. Returns -1, what most calls return
// then.
int reportMisuse(const char* format, ...) __attribute__((format(printf, 1, 2)));

}  // namespace kite
