// drop_down.h: the toolkit's combo box, which choices and combo boxes are.

#pragma once

#include <X11/Intrinsic.h>

#include "dialogs/control_type.h"
#include "toolkit/rect.h"

namespace kite {

// What differs between the two.
struct DropDownKind {
    const char* widgetName;
    unsigned char type;  // of XmNcomboBoxType
    bool hasWideList;    // whatever the width of the control
};

// Null when the toolkit could not make it.
Widget createDropDown(const DropDownKind& kind, Tag tag, int row, int x, int width);

// The list that drops down.
Widget listOf(Widget box);

// As many items as are there, up to what the user's setting has room for.
void fitDropDownList(Widget box);

}  // namespace kite
