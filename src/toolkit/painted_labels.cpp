#include "toolkit/painted_labels.h"

#include <Xm/Label.h>

#include "toolkit/children.h"

// The toolkit's own functions, which no header declares; other versions may not have them.
extern "C" {
struct XftDrawOfToolkit;
[[gnu::weak]] XftDrawOfToolkit* _XmXftDrawCreate(Display*, Window);              // NOLINT
[[gnu::weak]] void _XmXftDrawDestroy(Display*, Window, XftDrawOfToolkit* draw);  // NOLINT
}

namespace kite {

namespace {

// Gadgets are painted in the window of their parent.
bool mayHavePaintedLabels(Widget widget)
{
    return XtIsRealized(widget) && (XmIsLabel(widget) || XmIsManager(widget));
}

void freePaintedLabels(Widget widget)
{
    for (Widget const child : childrenOf(widget))
        if (XtIsWidget(child)) freePaintedLabels(child);
    if (!mayHavePaintedLabels(widget)) return;
    Display* const display = XtDisplay(widget);
    Window const window = XtWindow(widget);
    _XmXftDrawDestroy(display, window, _XmXftDrawCreate(display, window));
}

void shellDestroyed(Widget shell, XtPointer, XtPointer)
{
    freePaintedLabels(shell);
}

}  // namespace

void freePaintedLabelsWith(Widget shell)
{
    if (_XmXftDrawCreate && _XmXftDrawDestroy)
        XtAddCallback(shell, XtNdestroyCallback, shellDestroyed, nullptr);
}

}  // namespace kite
