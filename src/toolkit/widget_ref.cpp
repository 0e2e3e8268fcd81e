#include "toolkit/widget_ref.h"

#include <X11/StringDefs.h>

#include "toolkit/shells.h"

namespace kite {

void WidgetRef::reset(Widget widget)
{
    if (widget_) XtRemoveCallback(widget_, XtNdestroyCallback, destroyed, this);
    widget_ = widget;
    if (widget_) XtAddCallback(widget_, XtNdestroyCallback, destroyed, this);
}

Widget WidgetRef::get() const
{
    return widget_ && !isGoing(widget_) ? widget_ : nullptr;
}

void WidgetRef::destroyed(Widget widget, XtPointer self, XtPointer)
{
    auto& ref = *static_cast<WidgetRef*>(self);
    if (ref.widget_ == widget) ref.widget_ = nullptr;
}

}  // namespace kite
