#include "toolkit/shells.h"

#include <Xm/Protocols.h>
#include <Xm/Xm.h>

namespace kite {

Widget shellOf(Widget widget)
{
    while (widget && !XtIsShell(widget)) widget = XtParent(widget);
    return widget;
}

void destroyShell(Widget shell)
{
    XtUngrabKeyboard(shell, CurrentTime);
    XtDestroyWidget(shell);
}

void onCloseRequest(Widget shell, XtCallbackProc callback, XtPointer data)
{
    XtVaSetValues(shell, XmNdeleteResponse, XmDO_NOTHING, nullptr);
    const Atom closeRequest = XInternAtom(XtDisplay(shell), "WM_DELETE_WINDOW", False);
    XmAddWMProtocolCallback(shell, closeRequest, callback, data);
}

}  // namespace kite
