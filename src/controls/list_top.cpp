#include "controls/list_top.h"

#include <Xm/List.h>

#include <climits>

#include "toolkit/resources.h"

namespace kite {

int topItemOf(Widget list)
{
    return resource<int>(list, XmNtopItemPosition) - 1;
}

void setTopItem(Widget list, int item)
{
    if (item < INT_MAX) XmListSetPos(list, item + 1);
}

}  // namespace kite
