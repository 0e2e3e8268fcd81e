// toggle.h: an indicator in front of a label, which check boxes and radio buttons are.

#pragma once

#include <X11/Intrinsic.h>

#include "dialogs/control_type.h"

namespace kite {

// What differs between the two.
struct ToggleKind {
    const char* widgetName;
    unsigned char indicator;  // of XmNindicatorType
    int height;               // in units
    XtCallbackProc changed;
};

// Null when the toolkit could not make it.
Widget createToggle(const ToggleKind& kind, Tag tag, int row, int x, int width, const char* text);

}  // namespace kite
