#include "controls/tree_marks.h"

#include <Xm/Container.h>

#include <algorithm>
#include <list>

#include "toolkit/never_destroyed.h"
#include "toolkit/widget_ref.h"

namespace kite {

namespace {

// The trees whose marks are to be renewed, until the time-out has come.
using Waiting = std::list<WidgetRef>;
Waiting& waiting = neverDestroyed<Waiting>();

// Without any they are made anew.
void renew(Widget container)
{
    for (const int policy : {XmOUTLINE_BUTTON_ABSENT, XmOUTLINE_BUTTON_PRESENT})
        XtVaSetValues(container, XmNoutlineButtonPolicy, policy, nullptr);
}

void renewAll(XtPointer, XtIntervalId*)
{
    for (const WidgetRef& tree : waiting)
        if (Widget const container = tree.get()) renew(container);
    waiting.clear();
}

bool isWaiting(Widget container)
{
    return std::ranges::any_of(waiting,
                               [&](const WidgetRef& tree) { return tree.get() == container; });
}

}  // namespace

void renewMarksLater(Widget container)
{
    if (isWaiting(container)) return;
    if (waiting.empty())
        XtAppAddTimeOut(XtWidgetToApplicationContext(container), 0, renewAll, nullptr);
    waiting.emplace_back(container);
}

}  // namespace kite
