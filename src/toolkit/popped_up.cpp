#include "toolkit/popped_up.h"

#include <Xm/ComboBoxP.h>
#include <Xm/RowColumn.h>

#include <span>

#include "toolkit/children.h"
#include "toolkit/resources.h"

// The toolkit's own function, which no header declares.
extern "C" void _XmPopdown(Widget shell);  // NOLINT

namespace kite {

namespace {

// Of the toolkit's states of a list: any but the one from which it drops down.
constexpr XtEnum kDropsDownNoMore = 1;

void takeDownList(Widget box)
{
    Widget const shell = CB_ListShell(box);
    if (!shell) return;  // the list is always seen
    XtCallActionProc(shell, "GrabShellPopdown", nullptr, nullptr, 0);
    _XmPopdown(shell);  // when it is not on the screen yet, and has neither mouse nor keyboard
    CB_ShellState(box) = kDropsDownNoMore;
}

bool isPopupMenu(Widget widget)
{
    return XmIsRowColumn(widget) &&
           resource<unsigned char>(widget, XmNrowColumnType) == XmMENU_POPUP;
}

}  // namespace

void takeDownPopups(Widget widget)
{
    if (XmIsComboBox(widget)) return takeDownList(widget);
    if (isPopupMenu(widget)) return XtUnmanageChild(widget);
    for (Widget const child : childrenOf(widget)) takeDownPopups(child);
    if (!XtIsWidget(widget)) return;
    for (Widget const popup : std::span{widget->core.popup_list, widget->core.num_popups})
        takeDownPopups(popup);
}

}  // namespace kite
