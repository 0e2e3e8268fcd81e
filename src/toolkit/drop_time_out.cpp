#include "toolkit/drop_time_out.h"

#include <Xm/Display.h>
#include <Xm/DragC.h>
#include <Xm/DropTrans.h>

#include <vector>

#include "toolkit/never_destroyed.h"
#include "toolkit/resources.h"
#include "toolkit/widget_ref.h"

namespace kite {

namespace {

// The parent of all drag contexts, from the start of a drop until its time-out is due.
WidgetRef& contextParent = neverDestroyed<WidgetRef>();

std::vector<Widget> dragContexts()
{
    std::vector<Widget> contexts;
    if (!contextParent) return contexts;
    const auto children = resource<WidgetList>(contextParent.get(), XmNchildren);
    const auto count = resource<Cardinal>(contextParent.get(), XmNnumChildren);
    for (Cardinal i = 0; i < count; ++i)
        if (XtClass(children[i]) == xmDragContextClass) contexts.push_back(children[i]);
    return contexts;
}

// Does nothing: it stands in the list of destroy callbacks just before the one that Motif adds.
void mark(Widget, XtPointer, XtPointer) {}

void removeBehindMark(Widget context)
{
    const auto* entry = resource<XtCallbackList>(context, XmNdestroyCallback);
    while (entry && entry->callback && entry->callback != mark) ++entry;
    if (!entry || !entry->callback) return;
    const XtCallbackRec behind = entry[1];
    if (behind.callback)
        XtRemoveCallback(context, XmNdestroyCallback, behind.callback, behind.closure);
    XtRemoveCallback(context, XmNdestroyCallback, mark, nullptr);
}

void transferStarts(XtPointer, XtIntervalId*)
{
    for (Widget const context : dragContexts()) removeBehindMark(context);
}

// Motif goes on from here to its time-out and its callback. The time-out here is asked for first, so it
// is due just before that one: early enough for a transfer that ends at once.
void created(Widget, XtPointer, XtPointer callData)
{
    Widget const widget = static_cast<XtCreateHookDataRec*>(callData)->widget;
    if (XtClass(widget) != xmDropTransferObjectClass) return;
    contextParent.reset(XtParent(widget));
    for (Widget const context : dragContexts())
        XtAddCallback(context, XmNdestroyCallback, mark, nullptr);
    XtAppAddTimeOut(XtWidgetToApplicationContext(widget), 0, transferStarts, nullptr);
}

}  // namespace

void keepTimeOutsFromDrops(Display* onDisplay)
{
    Widget const hooks = XtHooksOfDisplay(onDisplay);
    XtRemoveCallback(hooks, XtNcreateHook, created, nullptr);
    XtAddCallback(hooks, XtNcreateHook, created, nullptr);
}

}  // namespace kite
