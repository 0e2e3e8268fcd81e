#include "toolkit/shells.h"

#include <X11/IntrinsicP.h>
#include <Xm/Protocols.h>
#include <Xm/Xm.h>

#include <algorithm>
#include <vector>

#include "toolkit/nested_loop.h"
#include "toolkit/never_destroyed.h"
#include "toolkit/popped_up.h"

namespace kite {

namespace {

// Xt keeps the path of widgets along which the latest key came, and takes the same path again when the next key
// comes to a widget at the same address. The toolkit sends every shell with a close request a made-up key when it
// goes: a new window whose widget happens to lie where that shell was would lose its first key. Another key, to a
// widget that stays, leaves nothing of the old path.
void forgetPathOfKeys(Widget shell, XtPointer, XtPointer)
{
    Widget root = shell;
    while (XtParent(root)) root = XtParent(root);
    if (root->core.being_destroyed || !XtIsRealized(root)) return;
    XEvent event{};
    event.xkey.type = KeyRelease;
    event.xkey.display = XtDisplay(root);
    event.xkey.serial = LastKnownRequestProcessed(XtDisplay(root));
    event.xkey.send_event = True;
    event.xkey.window = XtWindow(root);
    event.xkey.time = XtLastTimestampProcessed(XtDisplay(root));
    XtDispatchEvent(&event);
}

// Taken away, and not yet destroyed.
std::vector<Widget>& closed = neverDestroyed<std::vector<Widget>>();

void forget(Widget shell, XtPointer, XtPointer)
{
    std::erase(closed, shell);
}

void destroyClosed(Widget shell)
{
    if (std::ranges::find(closed, shell) == closed.end()) return;  // it went with another one
    std::erase(closed, shell);
    destroyShell(shell);
}

bool isClosed(Widget widget)
{
    if (closed.empty()) return false;
    while (widget && std::ranges::find(closed, widget) == closed.end()) widget = XtParent(widget);
    return widget != nullptr;
}

}  // namespace

Widget shellOf(Widget widget)
{
    while (widget && !XtIsShell(widget)) widget = XtParent(widget);
    return widget;
}

void destroyShell(Widget shell)
{
    takeDownPopups(shell);
    XtUngrabKeyboard(shell, CurrentTime);
    XtAddCallback(shell, XmNdestroyCallback, forgetPathOfKeys,
                  nullptr);  // behind the toolkit's own
    XtDestroyWidget(shell);
}

void takeAway(Widget widget, int loopsBefore)
{
    if (loopsRunning() <= loopsBefore + 1) return destroyShell(widget);
    takeDownPopups(widget);
    XtUngrabKeyboard(widget, CurrentTime);
    if (XtIsShell(widget) && XtIsRealized(widget))
        XWithdrawWindow(XtDisplay(widget), XtWindow(widget),
                        XScreenNumberOfScreen(XtScreen(widget)));
    XtAddCallback(widget, XmNdestroyCallback, forget, nullptr);
    closed.push_back(widget);
    whenLoopsAre(loopsBefore + 1, [widget] { destroyClosed(widget); });
}

bool isGoing(Widget widget)
{
    return widget->core.being_destroyed || isClosed(widget);
}

void onCloseRequest(Widget shell, XtCallbackProc callback, XtPointer data)
{
    XtVaSetValues(shell, XmNdeleteResponse, XmDO_NOTHING, nullptr);
    const Atom closeRequest = XInternAtom(XtDisplay(shell), "WM_DELETE_WINDOW", False);
    XmAddWMProtocolCallback(shell, closeRequest, callback, data);
}

}  // namespace kite
