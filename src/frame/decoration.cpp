#include "frame/decoration.h"

#include <Xm/Xm.h>
#include <kitegui.h>

#include <algorithm>

#include "toolkit/resources.h"
#include "toolkit/x_error_trap.h"

constexpr int kNoDecoration = 666;

int decorWindow = kNoDecoration;

namespace kite {

namespace {

using savedGeometry::Position;
using settings::Geometry;

constexpr Geometry kNothing{-1, -1, -1, -1};

// What the host has asked for: set by noteRequest, until the window manager answers.
struct {
    Geometry wanted = kNothing;
    Geometry before = kNothing;  // of the shell
} request;

void structureChanged(Widget shell, XtPointer, XEvent* event, Boolean*)
{
    if (event->type == ReparentNotify && event->xreparent.window == XtWindow(shell))
        decorWindow = static_cast<int>(event->xreparent.parent);
    if (event->type == ConfigureNotify) request = {};
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

Geometry ownPlaceOf(Widget shell)
{
    return {resource<::Position>(shell, XmNx), resource<::Position>(shell, XmNy),
            resource<Dimension>(shell, XmNwidth), resource<Dimension>(shell, XmNheight)};
}

// Where the shell stands with its decoration, when one is known, else where it stands.
Position decoratedPosition(Widget shell)
{
    const Position position{resource<::Position>(shell, XmNx), resource<::Position>(shell, XmNy)};
    if (decorWindow == kNoDecoration) return position;
    return savedGeometry::withDecoration(position, offsetInDecoration(shell));
}

void replaceIfGiven(int& value, int given)
{
    if (given >= 0) value = given;
}

void replaceGiven(Geometry& geometry, const Geometry& given)
{
    replaceIfGiven(geometry.x, given.x);
    replaceIfGiven(geometry.y, given.y);
    replaceIfGiven(geometry.width, given.width);
    replaceIfGiven(geometry.height, given.height);
}

}  // namespace

void watchDecoration(Widget shell)
{
    forgetDecoration();
    XtAddEventHandler(shell, StructureNotifyMask, False, structureChanged, nullptr);
}

void forgetDecoration()
{
    decorWindow = kNoDecoration;
    request = {};
}

void noteRequest(Widget shell, const Geometry& place)
{
    request.before = ownPlaceOf(shell);
    replaceGiven(request.wanted, place);
    // Window managers keep to the least size that the shell tells them.
    if (place.width >= 0) request.wanted.width = std::max(place.width, savedGeometry::kLeastWidth);
    if (place.height >= 0)
        request.wanted.height = std::max(place.height, savedGeometry::kLeastHeight);
}

Geometry placeOf(Widget shell)
{
    Geometry place = ownPlaceOf(shell);
    const bool isAnswered = place != request.before;
    const Position corner = decoratedPosition(shell);
    place.x = corner.x;
    place.y = corner.y;
    if (!isAnswered) replaceGiven(place, request.wanted);
    return place;
}

}  // namespace kite
