// in_dialog.h: work that needs a dialog of the library on the screen.

#pragma once

#include <functional>

namespace bench {

struct DialogWork {
    std::function<void()> build;  // the controls
    std::function<void()> fill;   // before it is shown; may be empty
    std::function<void()> work;   // when it is painted; may be empty
};

// From a handler of the frame.
void runInDialog(const DialogWork& dialog);

}  // namespace bench
