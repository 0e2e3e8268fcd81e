#include "controls/list_top.h"

#include <Xm/List.h>

#include <climits>

namespace kite {

void setTopItem(Widget list, int item)
{
    if (item < INT_MAX) XmListSetPos(list, item + 1);
}

}  // namespace kite
