// dialog_run.h: a dialog on the screen, until it is closed.

#pragma once

#include <X11/Intrinsic.h>

#include <optional>

namespace kite::dialogRun {

// Runs the dialog that was under construction; another can be built meanwhile. Returns what it was closed
// with.
int run();

// The dialog, if the top window is one that runs, is closed with this code. Returns how many event loops had begun
// before its own then.
std::optional<int> noteCode(Widget top, int code);

// The control gets the focus when the dialog is shown.
void requestFocus(Widget control);

}  // namespace kite::dialogRun
