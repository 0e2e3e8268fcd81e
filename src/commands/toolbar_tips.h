// toolbar_tips.h: the tooltips of toolbar buttons.

#pragma once

#include <X11/Intrinsic.h>

namespace kite::commands {

// Shows the tip of the button's command when the pointer rests on it.
void showTipOf(Widget button);

// The button is about to be greyed: it gets no word when the pointer leaves it.
void forgetTipOf(Widget button);

}  // namespace kite::commands
