#include "frame/decoration.h"

#include <Xm/Xm.h>
#include <kitegui.h>

#include "toolkit/resources.h"
#include "toolkit/x_error_trap.h"

constexpr int kNoDecoration = 666;

int decorWindow = kNoDecoration;

namespace kite {

namespace {

using savedGeometry::Position;

void structureChanged(Widget shell, XtPointer, XEvent* event, Boolean*)
{
    if (event->type == ReparentNotify && event->xreparent.window == XtWindow(shell))
        decorWindow = static_cast<int>(event->xreparent.parent);
}

// A window that is gone stands nowhere: the same as an implausible place.
Position placeInParent(Display* display, Window window)
{
    Window root;
    Position place{};
    unsigned int width, height, border, depth;
    const bool isThere = XGetGeometry(display, window, &root, &place.x, &place.y, &width, &height,
                                      &border, &depth) != 0;
    return isThere ? place : Position{-1, -1};
}

Position offsetInDecoration(Widget shell)
{
    Display* const display = XtDisplay(shell);
    const XErrorTrap trap{display};  // the decoration is the window manager's and may be gone
    const Position inner = placeInParent(display, XtWindow(shell));
    if (inner.x != 0 || inner.y != 0) return inner;
    // Some window managers put one more window between the decoration and the shell.
    return placeInParent(display, static_cast<Window>(decorWindow));
}

}  // namespace

void watchDecoration(Widget shell)
{
    XtAddEventHandler(shell, StructureNotifyMask, False, structureChanged, nullptr);
}

void forgetDecoration()
{
    decorWindow = kNoDecoration;
}

savedGeometry::Position decoratedPosition(Widget shell)
{
    const Position position{resource<::Position>(shell, XmNx), resource<::Position>(shell, XmNy)};
    if (decorWindow == kNoDecoration) return position;
    return savedGeometry::withDecoration(position, offsetInDecoration(shell));
}

}  // namespace kite
