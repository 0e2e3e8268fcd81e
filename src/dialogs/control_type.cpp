#include "dialogs/control_type.h"

#include <Xm/GadgetP.h>
#include <Xm/ManagerP.h>
#include <Xm/PrimitiveP.h>

namespace kite {

namespace {

// The field itself: XtGetValues compares the names of all resources, and controls are looked for among
// thousands.
XtPointer userDataOf(Widget widget)
{
    if (XmIsPrimitive(widget))
        return reinterpret_cast<XmPrimitiveWidget>(widget)->primitive.user_data;
    if (XmIsManager(widget)) return reinterpret_cast<XmManagerWidget>(widget)->manager.user_data;
    if (XmIsGadget(widget)) return reinterpret_cast<XmGadget>(widget)->gadget.user_data;
    return nullptr;
}

}  // namespace

Tag Tag::of(Widget widget)
{
    return Tag{userDataOf(widget)};
}

}  // namespace kite
