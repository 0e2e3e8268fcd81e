// frame_show.cpp: the step that shows what the host has built.

#include <X11/IntrinsicP.h>
#include <Xm/MainW.h>
#include <Xm/Text.h>
#include <kitegui.h>

#include <algorithm>

#include "frame/dispatcher.h"
#include "frame/focus_leave.h"
#include "frame/frame_widgets.h"
#include "frame/main_frame.h"
#include "toolkit/resources.h"

namespace kite::frame {

namespace {

bool hasToolbarButtons(const Widgets& frame)
{
    return frame.toolbar && resource<Cardinal>(frame.toolbar, XmNnumChildren) > 0;
}

// The main window would stack its areas by their own wishes, and leave a toolbar as low as it was when there
// was no room for it once; here its height is fixed, and what it takes comes off the Output area.
void placeToolbar(const Widgets& frame)
{
    const Widget scroller = frame.scroller;
    const int menuHeight = resource<Dimension>(frame.menuBar, XmNheight);
    const int scrollerTop = menuHeight + kToolbarHeight;
    const int lowered = scrollerTop - resource<Position>(scroller, XmNy);
    const int scrollerHeight = std::max(resource<Dimension>(scroller, XmNheight) - lowered, 1);
    XtConfigureWidget(frame.toolbar, 0, static_cast<Position>(menuHeight),
                      resource<Dimension>(frame.menuBar, XmNwidth), kToolbarHeight, 0);
    XtConfigureWidget(scroller, resource<Position>(scroller, XmNx),
                      static_cast<Position>(scrollerTop), resource<Dimension>(scroller, XmNwidth),
                      static_cast<Dimension>(scrollerHeight),
                      resource<Dimension>(scroller, XmNborderWidth));
}

bool canPlaceToolbar(const Widgets& frame)
{
    return frame.toolbar && XtIsManaged(frame.toolbar) && frame.menuBar && frame.scroller;
}

void resized(Widget, XtPointer, XEvent* event, Boolean*)
{
    const Widgets& frame = widgets();
    if (event->type == ConfigureNotify && canPlaceToolbar(frame) &&
        resource<Dimension>(frame.toolbar, XmNheight) != kToolbarHeight)
        placeToolbar(frame);
}

bool hasItsHeight(Widget menuBar)
{
    XtWidgetGeometry given{};
    given.request_mode = CWWidth;
    given.width = resource<Dimension>(menuBar, XmNwidth);
    XtWidgetGeometry wanted{};
    XtQueryGeometry(menuBar, &given, &wanted);
    return !(wanted.request_mode & CWHeight) ||
           wanted.height == resource<Dimension>(menuBar, XmNheight);
}

// The shell keeps its size, and so the main window refuses a menu bar that menus have made higher; only
// to what is managed anew it gives its height.
void manageMenuBar(Widget menuBar)
{
    if (XtIsManaged(menuBar) && !hasItsHeight(menuBar)) XtUnmanageChild(menuBar);
    XtManageChild(menuBar);
}

// All at once: the toolbar has its window already, and would lay itself out for every button.
void manageButtons(Widget toolbar)
{
    auto* const buttons = resource<WidgetList>(toolbar, XmNchildren);
    XtManageChildren(buttons, resource<Cardinal>(toolbar, XmNnumChildren));
}

// Before it is managed: the main window gives no place to a toolbar that it does not know as one. The menu bar it
// knows by itself.
void install(const Widgets& frame)
{
    XtVaSetValues(frame.mainWindow, XmNcommandWindow, frame.toolbar, nullptr);
}

}  // namespace

void show()
{
    if (!widgets().mainWindow) return;
    dispatcher::raiseFirst();
    if (!widgets().mainWindow) return;  // the host has closed the frame already

    focusLeave::forget();
    const bool hasToolbar = hasToolbarButtons(widgets());
    if (!hasToolbar && widgets().toolbar) dropToolbar();
    const Widgets& frame = widgets();
    if (hasToolbar) install(frame);
    if (frame.menuBar) manageMenuBar(frame.menuBar);
    if (hasToolbar) manageButtons(frame.toolbar);
    if (hasToolbar) XtManageChild(frame.toolbar);
    if (canPlaceToolbar(frame)) placeToolbar(frame);
    XtAddEventHandler(frame.mainWindow, StructureNotifyMask, False, resized, nullptr);
    if (frame.text) XmTextSetInsertionPosition(frame.text, XmTextGetLastPosition(frame.text));
    XFlush(XtDisplay(frame.mainWindow));
}

}  // namespace kite::frame
