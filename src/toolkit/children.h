// children.h: the children of a widget, in the order of their creation.

#pragma once

#include <X11/Intrinsic.h>

#include <span>

namespace kite {

// Of a composite widget; none of others. Valid until a child is made or goes.
std::span<Widget> childrenOf(Widget widget);

// Xt destroys in two phases: between them a widget is still a child.
bool isBeingDestroyed(Widget widget);

}  // namespace kite
