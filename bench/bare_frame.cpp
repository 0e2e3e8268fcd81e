#include "bare_frame.h"

#include <Xm/Form.h>
#include <Xm/LabelG.h>
#include <Xm/MainW.h>
#include <Xm/Protocols.h>
#include <Xm/RowColumn.h>
#include <Xm/Scale.h>
#include <Xm/ScrolledW.h>
#include <Xm/Text.h>

#include <array>

namespace bench {

namespace {

constexpr char kProportional[] = "-adobe-helvetica-medium-r-normal--14-100-100-100-p-*-iso8859-1";
constexpr char kFixed[] = "-misc-fixed-medium-r-normal--14-110-100-100-c-*-iso8859-1";

XmFontList loadFont(Display* display, const char* name)
{
    XFontStruct* const font = XLoadQueryFont(display, name);
    XmFontListEntry entry =
        XmFontListEntryCreate(const_cast<char*>(XmFONTLIST_DEFAULT_TAG), XmFONT_IS_FONT, font);
    XmFontList const list = XmFontListAppendEntry(nullptr, entry);
    XmFontListEntryFree(&entry);
    return list;
}

void ignoreClose(Widget, XtPointer, XtPointer) {}

Widget createShell(Display* display)
{
    constexpr std::array<char, 128> noBits{};
    const Pixmap icon =
        XCreateBitmapFromData(display, DefaultRootWindow(display), noBits.data(), 32, 32);
    Screen* const screen = XDefaultScreenOfDisplay(display);
    Widget shell = XtVaAppCreateShell(
        "bare", "Bare", applicationShellWidgetClass, display, XmNtitle, "bare", XmNiconName, "bare",
        XmNiconPixmap, icon, XmNx, (WidthOfScreen(screen) - 450) / 2, XmNy,
        (HeightOfScreen(screen) - 300) / 2, XmNwidth, 450, XmNheight, 300, XmNminWidth, 300,
        XmNminHeight, 200, XmNdeleteResponse, XmDO_NOTHING, nullptr);
    XmAddWMProtocolCallback(shell, XInternAtom(display, "WM_DELETE_WINDOW", False), ignoreClose,
                            nullptr);
    return shell;
}

Widget createText(Widget mainWindow, Widget scroller, XmFontList font)
{
    Screen* const screen = XtScreen(mainWindow);
    return XtVaCreateManagedWidget("text", xmTextWidgetClass, scroller, XmNeditMode,
                                   XmMULTI_LINE_EDIT, XmNblinkRate, 0, XmNforeground,
                                   BlackPixelOfScreen(screen), XmNbackground,
                                   WhitePixelOfScreen(screen), XmNfontList, font, nullptr);
}

void createStatusBar(Widget bar, XmFontList font)
{
    XmString blank = XmStringCreateLocalized(const_cast<char*>(" "));
    Widget line = XtVaCreateManagedWidget(
        "line", xmLabelGadgetClass, bar, XmNlabelString, blank, XmNalignment, XmALIGNMENT_BEGINNING,
        XmNrecomputeSize, False, XmNfontList, font, XmNleftAttachment, XmATTACH_FORM,
        XmNtopAttachment, XmATTACH_FORM, XmNbottomAttachment, XmATTACH_FORM, XmNrightAttachment,
        XmATTACH_POSITION, XmNrightPosition, 67, nullptr);
    XmStringFree(blank);
    XtVaCreateManagedWidget(
        "gauge", xmScaleWidgetClass, bar, XmNorientation, XmHORIZONTAL, XmNeditable, False,
        XmNtraversalOn, False, XmNslidingMode, XmTHERMOMETER, XmNsliderVisual, XmFOREGROUND_COLOR,
        XmNsliderMark, XmNONE, XmNleftAttachment, XmATTACH_WIDGET, XmNleftWidget, line,
        XmNrightAttachment, XmATTACH_FORM, XmNrightOffset, 20, XmNtopAttachment, XmATTACH_FORM,
        XmNtopOffset, 4, XmNbottomAttachment, XmATTACH_FORM, XmNbottomOffset, 4, nullptr);
}

void createContents(BareFrame& frame)
{
    XmFontList const proportional = loadFont(frame.display, kProportional);
    frame.menuFont = loadFont(frame.display, kProportional);
    XmFontList const fixed = loadFont(frame.display, kFixed);
    Widget const menuBar = frame.menuBar =
        XmCreateMenuBar(frame.mainWindow, const_cast<char*>("menu"), nullptr, 0);
    Widget scroller =
        XtVaCreateManagedWidget("scroller", xmScrolledWindowWidgetClass, frame.mainWindow,
                                XmNscrollingPolicy, XmAPPLICATION_DEFINED, nullptr);
    frame.text = createText(frame.mainWindow, scroller, fixed);
    Widget statusBar =
        XtVaCreateManagedWidget("status", xmFormWidgetClass, frame.mainWindow, nullptr);
    createStatusBar(statusBar, proportional);
    XtManageChild(menuBar);
    XtVaSetValues(frame.mainWindow, XmNmenuBar, menuBar, XmNworkWindow, scroller, XmNmessageWindow,
                  statusBar, XmNinitialFocus, frame.text, nullptr);
}

}  // namespace

BareFrame openBareFrame()
{
    static const bool initialized = (XtToolkitInitialize(), true);
    static_cast<void>(initialized);
    BareFrame frame{};
    frame.application = XtCreateApplicationContext();
    char program[] = "bare";
    char* arguments[] = {program, nullptr};
    int count = 1;
    frame.display =
        XtOpenDisplay(frame.application, nullptr, "bare", "Bare", nullptr, 0, &count, arguments);
    frame.shell = createShell(frame.display);
    frame.mainWindow = XtVaCreateWidget("main", xmMainWindowWidgetClass, frame.shell, nullptr);
    createContents(frame);
    XtManageChild(frame.mainWindow);
    XtRealizeWidget(frame.shell);
    return frame;
}

void closeBareFrame(BareFrame& frame)
{
    XtDestroyWidget(frame.shell);
    XtDestroyApplicationContext(frame.application);
}

void processUntilPainted(Widget text)
{
    bool isPainted = false;
    const auto exposed = [](Widget, XtPointer flag, XEvent*, Boolean*) {
        *static_cast<bool*>(flag) = true;
    };
    XtAddEventHandler(text, ExposureMask, False, exposed, &isPainted);
    XtAppContext const application = XtWidgetToApplicationContext(text);
    while (!isPainted) XtAppProcessEvent(application, XtIMAll);
    XtRemoveEventHandler(text, ExposureMask, False, exposed, &isPainted);
    XSync(XtDisplay(text), False);
}

void processAll(Widget widget)
{
    XSync(XtDisplay(widget), False);
    XtAppContext const application = XtWidgetToApplicationContext(widget);
    while (XtAppPending(application) & XtIMXEvent) {
        while (XtAppPending(application) & XtIMXEvent) XtAppProcessEvent(application, XtIMXEvent);
        XSync(XtDisplay(widget), False);
    }
}

void processUntilAllPainted(Widget widget)
{
    processUntilPainted(widget);
    processAll(widget);
}

}  // namespace bench
