#include "controls/selected_tree_item.h"

#include <Xm/Container.h>

#include "toolkit/resources.h"

namespace kite {

Widget selectedTreeItem(Widget container)
{
    if (resource<Cardinal>(container, XmNselectedObjectCount) == 0) return nullptr;
    return resource<WidgetList>(container, XmNselectedObjects)[0];
}

}  // namespace kite
