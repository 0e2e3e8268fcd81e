// log_file.h: the log of this process (the class LogFile itself stands in the public header).

#pragma once

#include <kitegui.h>

namespace kite {

// Stopped when the frame closes, and once more when the library is unloaded.
LogFile& outputLog();

}  // namespace kite
