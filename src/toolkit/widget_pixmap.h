// widget_pixmap.h: pixmaps that belong to a widget.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

// Frees the pixmap when the widget is destroyed: the toolkit's widgets show pixmaps without owning them.
void freeWithWidget(Widget widget, Pixmap pixmap);

}  // namespace kite
