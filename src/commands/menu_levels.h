// menu_levels.h: the menus that are open while the menu bar is built, one inside the other.

#pragma once

#include <X11/Intrinsic.h>

#include "toolkit/argument_list.h"
#include "toolkit/compound_string.h"
#include "toolkit/label_text.h"

namespace kite::commands {

// Where the next item goes: the menu bar at level 0. Null without a frame, or when the host has
// destroyed the menu.
Widget currentMenu();

void openMenu(Widget pulldown);
void closeMenu();

// Label, mnemonic and font, as menus and items have them.
class MenuLabel {
public:
    explicit MenuLabel(const char* name);

    void addTo(ArgumentList& arguments, Widget parent) const;

private:
    LabelText text_;
    CompoundString label_;
};

}  // namespace kite::commands
