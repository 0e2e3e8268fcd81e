// control_lookup.h: from a control's id to its widget.

#pragma once

#include <X11/Intrinsic.h>

#include "dialogs/control_type.h"

namespace kite {

// A control of the running dialog, or none.
struct Control {
    Widget widget =
        nullptr;  // the list, text or container itself where it stands in a scrolled window
    Widget outer = nullptr;  // the scrolled window then; else the same
    ControlType type{};

    explicit operator bool() const { return widget != nullptr; }
};

// None after an error box, which names the operation: "SetText".
Control findControl(const char* operation, int id);

// The same for an operation that not all types of controls have.
Control findControl(const char* operation, int id, TypeSet accepted);

// The error box of an operation that the control's type does not have.
void refuse(const char* operation, int id);

}  // namespace kite
