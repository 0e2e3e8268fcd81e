#include "frame/top_window.h"

#include <kitegui.h>

#include "frame/session.h"
#include "toolkit/never_destroyed.h"

namespace kite {

namespace {

struct State {
    WidgetRef main;       // set when the frame is built, empty once it is closed
    WidgetRef top;        // set by dialogs, boxes and the host
    bool hasTop = false;  // false: the host or closing said that there is none
};
State& state = neverDestroyed<State>();

}  // namespace

Widget mainWindow()
{
    return state.main.get();
}

void setMainWindow(Widget window)
{
    state.main.reset(window);
}

Widget topWindow()
{
    if (!state.hasTop) return nullptr;
    // A top window that was destroyed behind our back must not leave the frame without events.
    return state.top ? state.top.get() : mainWindow();
}

void setTopWindow(Widget window)
{
    state.top.reset(window);
    state.hasTop = window != nullptr;
}

Widget boxParent()
{
    Widget parent = topWindow();
    if (!parent) parent = session::owner();
    while (parent && !XtIsWidget(parent)) parent = XtParent(parent);  // a gadget has no children
    return parent;
}

XtAppContext servedApplication()
{
    Widget const main = mainWindow();
    return main ? XtWidgetToApplicationContext(main) : session::application();
}

void forgetTopWindowOf(const Display* display)
{
    Widget const top = state.top.get();
    if (top && XtDisplayOfObject(top) == display) setTopWindow(nullptr);
}

TopWindowScope::TopWindowScope(Widget window)
    : traversal_(window), previous_(topWindow()), hadPrevious_(static_cast<bool>(previous_))
{
    setTopWindow(window);
}

TopWindowScope::~TopWindowScope()
{
    // When the previous one was closed meanwhile, closing has chosen the top window already.
    if (previous_ || !hadPrevious_) setTopWindow(previous_.get());
}

}  // namespace kite

GuiWidget guiGetTopWnd(void)
{
    return kite::topWindow();
}

void guiSetTopWnd(GuiWidget widget)
{
    kite::setTopWindow(widget);
}
