#include "controls/selected_tree_item.h"

#include <Xm/Container.h>

#include "toolkit/resources.h"

namespace kite {

// Other than lists of children, this one is made anew each time it is asked for.
Widget selectedTreeItem(Widget container)
{
    auto* const items = resource<WidgetList>(container, XmNselectedObjects);
    Widget const first = items ? items[0] : nullptr;
    XtFree(reinterpret_cast<char*>(items));
    return first;
}

}  // namespace kite
