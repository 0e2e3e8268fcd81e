// tour_under_test.h: the tour as a process that may not harm the machine, whatever is done to it.

#pragma once

#include <X11/Xlib.h>

#include <memory>
#include <string>

#include "process.h"
#include "temporary_directory.h"

namespace kite::testing {

class TourUnderTest {
public:
    TourUnderTest();

    bool isRunning() { return process_ && process_->isRunning(); }

    // Starts it, anew when it has ended. False after a failure when it does not come.
    bool start();

    Window frame() const { return frame_; }

    // The window is the tour's: its frame, a dialog, a menu or anything in one of these.
    bool owns(Window window) const;

    // Once it has ended: with status 0 and without a word. Sanitizers, the X library, and the toolkit speak up.
    void expectCleanEnd();

    // Closes what is open until it ends; false when it does not, for it hangs.
    bool leave();

private:
    TemporaryDirectory directory_{"monkey"};
    std::unique_ptr<Process> process_;
    Window frame_ = 0;
};

}  // namespace kite::testing
