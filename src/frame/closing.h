// closing.h: requests to close a window, and what guiClose does to dialogs, which lie above the frame.

#pragma once

#include <X11/Intrinsic.h>

#include <optional>

namespace kite::frame {

// The window manager has asked to close the frame or a dialog. While another dialog or a box is open, those
// behind it cannot be closed: the bell rings.
void answerCloseRequest(Widget window);

struct DialogActions {
    bool (*abandon)();  // throws away a dialog under construction, if there is one
    void (*restart)();  // the frame is taken back to its beginning
    // The top window is closed with this code. Returns how many event loops had begun before its own, if it is a
    // dialog that runs.
    std::optional<int> (*noteCode)(Widget top, int code);
};
void setDialogActions(const DialogActions& actions);

// For guiRestart.
void restartDialogs();

}  // namespace kite::frame
