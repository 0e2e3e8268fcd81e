#include "widgets.h"

#include <X11/IntrinsicP.h>

#include <X11/ShellP.h>
#include <Xm/MessageB.h>
#include <Xm/SelectioB.h>
#include <Xm/Text.h>

#include "connection.h"
#include "toolkit.h"

namespace kite::testing {

std::vector<Widget> childrenOf(Widget widget)
{
    std::vector<Widget> children;
    if (XtIsComposite(widget)) {
        const auto& composite = reinterpret_cast<CompositeWidget>(widget)->composite;
        children.assign(composite.children, composite.children + composite.num_children);
    }
    if (XtIsWidget(widget)) {
        const CorePart& core = widget->core;
        children.insert(children.end(), core.popup_list, core.popup_list + core.num_popups);
    }
    return children;
}

void forEachWidget(Widget from, const std::function<void(Widget)>& visit)
{
    if (!from || from->core.being_destroyed) return;
    visit(from);
    for (Widget const child : childrenOf(from)) forEachWidget(child, visit);
}

std::vector<Widget> findWidgets(const std::string& name, Widget below)
{
    std::vector<Widget> found;
    forEachWidget(below, [&](Widget widget) {
        if (name == XtName(widget)) found.push_back(widget);
    });
    return found;
}

std::vector<Widget> findWidgets(const std::string& name)
{
    return findWidgets(name, toolkit::root());
}

Widget findWidget(const std::string& name, Widget below)
{
    const std::vector<Widget> found = findWidgets(name, below);
    return found.empty() ? nullptr : found.front();
}

Widget findWidget(const std::string& name)
{
    return findWidget(name, toolkit::root());
}

Widget findByLabel(const std::string& label, Widget below)
{
    Widget found = nullptr;
    forEachWidget(below, [&](Widget widget) {
        if (!found && XtIsManaged(widget) && labelOf(widget) == label) found = widget;
    });
    return found;
}

Widget shellOf(Widget widget)
{
    while (widget && !XtIsShell(widget)) widget = XtParent(widget);
    return widget;
}

Window windowOf(Widget widget)
{
    return widget ? XtWindowOfObject(widget) : 0;
}

bool isShown(Widget widget)
{
    if (!widget || widget->core.being_destroyed || !XtIsRealized(widget)) return false;
    return (XtIsShell(widget) || XtIsManaged(widget)) && isViewable(windowOf(widget));
}

Rect rectOf(Widget widget)
{
    Rect rect = rectOnScreen(windowOf(widget));
    if (XtIsWidget(widget)) return rect;
    const RectObjPart& gadget = reinterpret_cast<RectObj>(widget)->rectangle;
    return {rect.x + gadget.x, rect.y + gadget.y, gadget.width, gadget.height};
}

}  // namespace kite::testing
