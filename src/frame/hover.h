// hover.h: what happens when the pointer rests on a button or control: a tooltip or an event.

#pragma once

#include <X11/Intrinsic.h>

namespace kite::hover {

// Milliseconds; a negative delay switches hovering off.
void setDelay(int milliseconds);

// The pointer entered a button with this tip: shows it after the delay.
void enterWithTip(const char* tip);

// The pointer entered a control: reports it to the host after the delay, when the control is still there.
void enterControl(Widget control, int id);

// The pointer left: takes away a tip that waits or is shown.
void leave();

// The user has acted: a tip that waits is not shown any more.
void cancel();

}  // namespace kite::hover
