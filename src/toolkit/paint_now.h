// paint_now.h: shows a change at once, when the host may be busy for a while.
//
// XmUpdateDisplay does so by asking the server what is left to paint and waiting for its answer, with every
// call. A host may be far from the server and set many texts: this paints without asking. And as painting
// costs ten times what the change itself costs, only so many changes in a row are painted at once; the
// others are painted by the event loop, as ever.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

// Changes in a row that are painted at once, and how many more can be after each millisecond.
inline constexpr double kPaintedInARow = 32;
inline constexpr double kPaintedAMillisecond = 1;

// The widget, whose resources have just been changed; with the first of several also whatever else the
// server has asked to be painted by now.
void paintNow(Widget widget);

// The same for a widget that paints its changes by itself: they are sent to the server.
void sendNow(Widget widget);

}  // namespace kite
