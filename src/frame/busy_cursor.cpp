#include "frame/busy_cursor.h"

#include <X11/cursorfont.h>

#include "frame/session.h"
#include "frame/top_window.h"
#include "toolkit/shells.h"

namespace kite {

namespace {

struct {
    Cursor cursor = None;        // made on first use and kept
    Display* display = nullptr;  // where
    int generation = 0;          // and in which session
} watch;

Cursor watchCursor(Display* display)
{
    if (watch.display != display || watch.generation != session::generation())
        watch = {XCreateFontCursor(display, XC_watch), display, session::generation()};
    return watch.cursor;
}

Widget windowToCover(bool beforeShowing)
{
    Widget const top = topWindow();
    if (!top || !beforeShowing || top == mainWindow()) return top;
    return XtParent(shellOf(top));
}

}  // namespace

BusyCursor::BusyCursor(bool beforeShowing) : window_(windowToCover(beforeShowing))
{
    Widget const window = window_.get();
    if (!window || !XtIsRealized(window)) return;
    XDefineCursor(XtDisplayOfObject(window), XtWindowOfObject(window),
                  watchCursor(XtDisplayOfObject(window)));
    XFlush(XtDisplayOfObject(window));
}

BusyCursor::~BusyCursor()
{
    Widget const window = window_.get();
    if (!window || !XtIsRealized(window)) return;
    XUndefineCursor(XtDisplayOfObject(window), XtWindowOfObject(window));
    XFlush(XtDisplayOfObject(window));
}

}  // namespace kite
