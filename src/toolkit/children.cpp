#include "toolkit/children.h"

#include <X11/IntrinsicP.h>

namespace kite {

std::span<Widget> childrenOf(Widget widget)
{
    if (!XtIsComposite(widget)) return {};
    const CompositePart& part = reinterpret_cast<CompositeWidget>(widget)->composite;
    return {part.children, part.num_children};
}

bool isBeingDestroyed(Widget widget)
{
    return widget->core.being_destroyed;
}

}  // namespace kite
