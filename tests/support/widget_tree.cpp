// widget_tree.cpp: prints the widgets of the application under test.

#include <X11/IntrinsicP.h>

#include <ostream>

#include "widgets.h"

namespace kite::testing {

namespace {

std::string oneLine(std::string text)
{
    for (char& c : text)
        if (c == '\n') c = '|';
    return text;
}

// Asks nothing of the server: a test that hangs may be in the middle of a request.
void printWidget(std::ostream& out, Widget widget)
{
    const RectObjPart& rect = reinterpret_cast<RectObj>(widget)->rectangle;
    out << XtName(widget) << "  " << XtClass(widget)->core_class.class_name << "  "
        << Rect{rect.x, rect.y, rect.width, rect.height};
    if (XtIsRealized(widget)) out << "  window 0x" << std::hex << windowOf(widget) << std::dec;
    if (!XtIsShell(widget) && !XtIsManaged(widget)) out << "  not managed";
    if (!XtIsSensitive(widget)) out << "  insensitive";
    for (const std::string& text : {labelOf(widget), messageOf(widget), textOf(widget)})
        if (!text.empty()) out << "  \"" << oneLine(text) << '"';
}

}  // namespace

void printTree(std::ostream& out, Widget from, int depth)
{
    if (!from || from->core.being_destroyed) return;
    if (!XtIsRectObj(from)) return;
    out << std::string(static_cast<std::size_t>(2 * depth), ' ');
    printWidget(out, from);
    out << '\n';
    for (Widget const child : childrenOf(from)) printTree(out, child, depth + 1);
}

}  // namespace kite::testing
