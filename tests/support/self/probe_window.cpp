#include "probe_window.h"

#include <X11/Xutil.h>
#include <Xm/DialogS.h>
#include <Xm/DrawingA.h>
#include <Xm/List.h>
#include <Xm/Protocols.h>
#include <Xm/PushB.h>
#include <Xm/RowColumn.h>
#include <Xm/Text.h>

namespace kite::testing {

namespace {

constexpr int kCanvasWidth = 200;
constexpr int kCanvasHeight = 60;

ProbeWindow& probe(XtPointer window)
{
    return *static_cast<ProbeWindow*>(window);
}

void pressed(Widget, XtPointer window, XtPointer)
{
    ++probe(window).presses;
}

std::string itemOf(XtPointer call)
{
    return toString(static_cast<XmListCallbackStruct*>(call)->item);
}

void itemSelected(Widget, XtPointer window, XtPointer call)
{
    probe(window).selected.push_back(itemOf(call));
}

void itemOpened(Widget, XtPointer window, XtPointer call)
{
    probe(window).opened.push_back(itemOf(call));
}

void closeRequested(Widget, XtPointer window, XtPointer)
{
    ++probe(window).closeRequests;
}

void mouseUsed(Widget, XtPointer window, XEvent* event, Boolean*)
{
    const XButtonEvent& used = event->xbutton;
    const unsigned button = event->type == MotionNotify ? 0 : used.button;
    probe(window).inputs.push_back({event->type, button, used.state, {used.x, used.y}});
}

void keyPressed(Widget, XtPointer window, XEvent* event, Boolean*)
{
    char text[8];
    KeySym symbol = NoSymbol;
    XLookupString(&event->xkey, text, sizeof text, &symbol, nullptr);
    if (IsModifierKey(symbol)) return;
    probe(window).keys.push_back(symbol);
    probe(window).keyStates.push_back(event->xkey.state);
}

void addItems(Widget list)
{
    for (const char* name : {"one", "two", "three"}) {
        XmString const item = XmStringCreateLocalized(const_cast<char*>(name));
        XmListAddItemUnselected(list, item, 0);
        XmStringFree(item);
    }
}

}  // namespace

ProbeWindow::ProbeWindow()
{
    Arg arguments[1];
    XtSetArg(arguments[0], XmNtitle, "Probe");
    Widget const shell =
        XmCreateDialogShell(guiGetTopWnd(), const_cast<char*>("v_probe_popup"), arguments, 1);
    XtVaSetValues(shell, XmNdeleteResponse, XmDO_NOTHING, nullptr);
    box = XtVaCreateWidget("v_probe", xmRowColumnWidgetClass, shell, nullptr);
    text = XtVaCreateManagedWidget("v_probetext", xmTextWidgetClass, box, XmNeditMode,
                                   XmMULTI_LINE_EDIT, XmNrows, 3, nullptr);
    list = XtVaCreateManagedWidget("v_probelist", xmListWidgetClass, box, XmNvisibleItemCount, 3,
                                   nullptr);
    button = XtVaCreateManagedWidget("press", xmPushButtonWidgetClass, box, nullptr);
    canvas = XtVaCreateManagedWidget("v_probecanvas", xmDrawingAreaWidgetClass, box, XmNwidth,
                                     kCanvasWidth, XmNheight, kCanvasHeight, nullptr);
    addItems(list);
    listen();
    show();
}

ProbeWindow::~ProbeWindow()
{
    XtDestroyWidget(XtParent(box));
}

void ProbeWindow::listen()
{
    XtAddCallback(button, XmNactivateCallback, pressed, this);
    XtAddCallback(list, XmNbrowseSelectionCallback, itemSelected, this);
    XtAddCallback(list, XmNdefaultActionCallback, itemOpened, this);
    const Atom deletion = XInternAtom(XtDisplay(box), "WM_DELETE_WINDOW", False);
    XmAddWMProtocolCallback(XtParent(box), deletion, closeRequested, this);
    XtAddEventHandler(canvas, ButtonPressMask | ButtonReleaseMask | PointerMotionMask, False,
                      mouseUsed, this);
    XtAddEventHandler(canvas, KeyPressMask, False, keyPressed, this);
}

void ProbeWindow::show()
{
    XtManageChild(box);
    EXPECT_TRUE(wm::waitUntilSettled(box));
    EXPECT_TRUE(wm::waitForFocus(box));
    settle();
}

void ProbeWindow::giveFocusToCanvas()
{
    XmProcessTraversal(canvas, XmTRAVERSE_CURRENT);
    settle();
}

}  // namespace kite::testing
