// closing.h: what guiClose does to dialogs, which lie above the frame.

#pragma once

#include <X11/Intrinsic.h>

namespace kite::frame {

struct DialogActions {
    bool (*abandon)();  // throws away a dialog under construction, if there is one
    void (*restart)();  // the frame is taken back to its beginning
    void (*noteCode)(Widget top, int code);  // the top window is closed with this code
};
void setDialogActions(const DialogActions& actions);

// For guiRestart.
void restartDialogs();

}  // namespace kite::frame
