#include "toolkit.h"

#include <X11/StringDefs.h>
#include <kitegui.h>

#include <array>

#include "connection.h"

namespace kite::testing::toolkit {

namespace {

constexpr std::array kCountedTypes{KeyPress, KeyRelease, ButtonPress, ButtonRelease, ClientMessage};

struct {
    Widget root = nullptr;  // set by attach, cleared when it is destroyed
    int generation = 0;     // raised by attach
    std::array<int, LASTEvent> received{};
    std::array<XtEventDispatchProc, LASTEvent> dispatchers{};  // the toolkit's own
} state;

bool counts(const XEvent& event)
{
    if (event.type != ClientMessage) return true;
    return static_cast<Atom>(event.xclient.data.l[0]) == atom("WM_DELETE_WINDOW");
}

Boolean countAndDispatch(XEvent* event)
{
    const auto type = static_cast<std::size_t>(event->type);
    if (counts(*event)) ++state.received[type];
    return state.dispatchers[type](event);
}

void countEvents(Display* display)
{
    for (const int type : kCountedTypes) {
        const XtEventDispatchProc previous = XtSetEventDispatcher(display, type, countAndDispatch);
        if (previous != countAndDispatch)
            state.dispatchers[static_cast<std::size_t>(type)] = previous;
    }
}

void destroyed(Widget widget, XtPointer, XtPointer)
{
    if (widget == state.root) state.root = nullptr;
}

Widget outermost(Widget widget)
{
    while (XtParent(widget)) widget = XtParent(widget);
    return widget;
}

}  // namespace

void attach(Widget anyWidget)
{
    Widget const root = outermost(anyWidget);
    if (root == state.root) return;
    state.root = root;
    ++state.generation;
    XtAddCallback(root, XtNdestroyCallback, destroyed, nullptr);
    countEvents(XtDisplay(root));
}

Widget root()
{
    if (!state.root)
        if (Widget const top = guiGetTopWnd()) attach(top);
    return state.root;
}

XtAppContext context()
{
    Widget const widget = root();
    return widget ? XtWidgetToApplicationContext(widget) : nullptr;
}

Display* display()
{
    Widget const widget = root();
    return widget ? XtDisplay(widget) : nullptr;
}

int generation()
{
    return state.generation;
}

int received(int eventType)
{
    return state.received[static_cast<std::size_t>(eventType)];
}

}  // namespace kite::testing::toolkit
