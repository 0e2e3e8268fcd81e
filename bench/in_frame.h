// in_frame.h: work that needs the library's frame on the screen and its main loop around it.

#pragma once

#include <functional>

namespace bench {

void runInFrame(const std::function<void()>& work);

}  // namespace bench
