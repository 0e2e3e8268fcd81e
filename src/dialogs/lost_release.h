// lost_release.h: what was pressed when a box came up.
//
// A click on a button moves the focus to it, and the host may answer to the field that was left with a box:
// "This is no date". The mouse button is released there; the toolkit's button would wait for it, drawn as
// pressed, until it is clicked again. An arrow would go on repeating.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

// Draws a push button, check box or radio button as it is, once the toolkit has done with the click.
void letGoLater(Widget control);

// For the arrows of a spin box and for scroll bars: when they are held while a box or another dialog is open, they
// are let go.
void letGoOfWhatIsHeld(Widget part);

}  // namespace kite
