// resources.h: typed reads of widget resources.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

// The value of a resource. A widget that lacks the resource leaves the fallback, so a type with
// nothing in its upper bytes must be asked for exactly (Dimension is not int).
template <typename T>
T resource(Widget widget, const char* name, T fallback = T{})
{
    T value = fallback;
    XtVaGetValues(widget, const_cast<char*>(name), &value, nullptr);
    return value;
}

}  // namespace kite
