#include "toolkit/layout.h"

#include <X11/IntrinsicP.h>

namespace kite {

void layOutAgain(Widget widget)
{
    XtClass(widget)->core_class.resize(widget);
    if (XtIsRealized(widget)) XClearArea(XtDisplay(widget), XtWindow(widget), 0, 0, 0, 0, True);
}

}  // namespace kite
