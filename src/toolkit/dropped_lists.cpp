#include "toolkit/dropped_lists.h"

#include <Xm/ComboBoxP.h>

#include <span>

#include "toolkit/children.h"

// The toolkit's own function, which no header declares.
extern "C" void _XmPopdown(Widget shell);  // NOLINT

namespace kite {

namespace {

// Of the toolkit's states of a list: any but the one from which it drops down.
constexpr XtEnum kDropsDownNoMore = 1;

void takeDown(Widget box)
{
    Widget const shell = CB_ListShell(box);
    if (!shell) return;  // the list is always seen
    XtCallActionProc(shell, "GrabShellPopdown", nullptr, nullptr, 0);
    _XmPopdown(shell);  // when it is not on the screen yet, and has neither mouse nor keyboard
    CB_ShellState(box) = kDropsDownNoMore;
}

}  // namespace

void takeDownLists(Widget widget)
{
    if (XmIsComboBox(widget)) return takeDown(widget);
    for (Widget const child : childrenOf(widget)) takeDownLists(child);
    if (!XtIsWidget(widget)) return;
    for (Widget const popup : std::span{widget->core.popup_list, widget->core.num_popups})
        takeDownLists(popup);
}

}  // namespace kite
