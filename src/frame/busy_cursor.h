// busy_cursor.h: the pointer is a watch over the top window while the host callback runs.

#pragma once

#include "toolkit/widget_ref.h"

namespace kite {

class BusyCursor {
public:
    // Event 0 reaches a dialog before the dialog is on the screen: the watch then shows over the
    // window that the dialog belongs to.
    explicit BusyCursor(bool beforeShowing);
    ~BusyCursor();

    BusyCursor(const BusyCursor&) = delete;
    BusyCursor& operator=(const BusyCursor&) = delete;

private:
    WidgetRef window_;
};

}  // namespace kite
