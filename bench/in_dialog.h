// in_dialog.h: work that needs a dialog of the library on the screen.

#pragma once

#include <benchmark/benchmark.h>

#include <functional>

namespace bench {

struct DialogWork {
    std::function<void()> build;  // the controls
    std::function<void()> fill;   // before it is shown; may be empty
    std::function<void()> work;   // when it is painted; may be empty
};

// From a handler of the frame.
void runInDialog(const DialogWork& dialog);

struct MeasuredWork {
    std::function<void()> build;
    std::function<void()> fill;    // before the dialog is shown; may be empty
    std::function<void()> before;  // each time, not measured; may be empty
    std::function<void()> work;
};

// The work in the dialog as often as the framework wants it.
void measureInDialog(benchmark::State& state, const MeasuredWork& measured);

}  // namespace bench
