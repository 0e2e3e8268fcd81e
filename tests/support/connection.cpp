#include "connection.h"

#include <cstdio>
#include <cstdlib>

#include "private_display.h"

namespace kite::testing {

namespace {

Display* opened = nullptr;  // by the first call of connection(), for the rest of the process

Display* openConnection()
{
    if (!isOnPrivateDisplay()) {
        std::fputs("The tests run on a display of their own only.\n", stderr);
        std::abort();
    }
    Display* const display = XOpenDisplay(nullptr);
    if (!display) {
        std::fputs("The display of the test cannot be opened.\n", stderr);
        std::abort();
    }
    return display;
}

struct Tree {
    Window parent = 0;
    std::vector<Window> children;
};

Tree treeOf(Window window)
{
    Window root = 0;
    Window* list = nullptr;
    unsigned int count = 0;
    Tree tree;
    if (!XQueryTree(connection(), window, &root, &tree.parent, &list, &count)) return {};
    tree.children.assign(list, list + count);
    if (list) XFree(list);
    return tree;
}

}  // namespace

Display* connection()
{
    if (!opened) opened = openConnection();
    return opened;
}

bool isConnection(const Display* display)
{
    return display && display == opened;
}

Window rootWindow()
{
    return DefaultRootWindow(connection());
}

Atom atom(const std::string& name)
{
    return XInternAtom(connection(), name.c_str(), False);
}

bool isViewable(Window window)
{
    XWindowAttributes attributes{};
    return window && XGetWindowAttributes(connection(), window, &attributes) &&
           attributes.map_state == IsViewable;
}

Rect rectOnScreen(Window window)
{
    XWindowAttributes attributes{};
    if (!XGetWindowAttributes(connection(), window, &attributes)) return {};
    Rect rect{0, 0, attributes.width, attributes.height};
    Window child = 0;
    XTranslateCoordinates(connection(), window, rootWindow(), 0, 0, &rect.x, &rect.y, &child);
    return rect;
}

std::vector<Window> childrenOf(Window window)
{
    return treeOf(window).children;
}

Window parentOf(Window window)
{
    return treeOf(window).parent;
}

std::vector<Window> windowsAt(Point point)
{
    std::vector<Window> path;
    Window window = rootWindow();
    while (true) {
        int x = 0;
        int y = 0;
        Window child = 0;
        if (!XTranslateCoordinates(connection(), rootWindow(), window, point.x, point.y, &x, &y,
                                   &child))
            break;
        if (!child) break;
        path.push_back(child);
        window = child;
    }
    return path;
}

Point pointerPosition()
{
    Window root = 0;
    Window child = 0;
    Point onScreen;
    Point inWindow;
    unsigned int mask = 0;
    XQueryPointer(connection(), rootWindow(), &root, &child, &onScreen.x, &onScreen.y, &inWindow.x,
                  &inWindow.y, &mask);
    return onScreen;
}

}  // namespace kite::testing
