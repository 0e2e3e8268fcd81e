#include "frame/frame_widgets.h"

#include <X11/IntrinsicP.h>
#include <X11/ShellP.h>
#include <Xm/Form.h>
#include <Xm/LabelG.h>
#include <Xm/MainW.h>
#include <Xm/RowColumn.h>
#include <Xm/Scale.h>
#include <Xm/ScrolledW.h>
#include <Xm/Text.h>

#include "frame/app_info.h"
#include "frame/file_drop.h"
#include "frame/frame_fonts.h"
#include "frame/keyboard.h"
#include "frame/saved_geometry.h"
#include "frame/session.h"
#include "output/edit_popup.h"
#include "toolkit/colours.h"
#include "toolkit/compound_string.h"
#include "toolkit/insertion_cursor.h"
#include "toolkit/parked_copy.h"
#include "toolkit/pixmaps.h"

namespace kite::frame {

namespace {

constexpr int kStatusLineEnd = 67;  // per cent of the status bar
constexpr int kGaugeRightMargin = 20;
constexpr int kGaugeMargin = 4;

char* mutableText(const char* text)
{
    return const_cast<char*>(text);
}

Widget createMenuBar(Widget mainWindow)
{
    Widget menuBar = XmCreateMenuBar(mainWindow, mutableText("v_menubar"), nullptr, 0);
    // The toolkit would take F10 for the menu bar; here it is a command like the other function keys.
    XtVaSetValues(menuBar, XmNmenuAccelerator, "", nullptr);
    return menuBar;
}

Widget createOutputText(Widget scroller)
{
    Widget text = XtVaCreateManagedWidget("v_text", xmTextWidgetClass, scroller, XmNeditMode,
                                          XmMULTI_LINE_EDIT, XmNeditable, True, XmNblinkRate, 0,
                                          XmNforeground, blackPixel(scroller), XmNbackground,
                                          whitePixel(scroller), nullptr);
    frameFonts::apply(text, frameFonts::Use::Output);
    showInsertionCursorWithFocus(text);
    raiseFunctionKeyCommands(text);
    acceptFileDrops(text);
    offerEditPopup(text, text);
    dropParkedCopyOnChange(text);
    return text;
}

Widget createStatusLine(Widget statusBar)
{
    const CompoundString blank{" "};
    Widget line = XtVaCreateManagedWidget(
        "v_sline", xmLabelGadgetClass, statusBar, XmNlabelString, blank.get(), XmNalignment,
        XmALIGNMENT_BEGINNING, XmNrecomputeSize, False, XmNleftAttachment, XmATTACH_FORM,
        XmNtopAttachment, XmATTACH_FORM, XmNbottomAttachment, XmATTACH_FORM, XmNrightAttachment,
        XmATTACH_POSITION, XmNrightPosition, kStatusLineEnd, nullptr);
    frameFonts::apply(line, frameFonts::Use::StatusLine);
    return line;
}

// A scale that only shows: a bar that grows from the left.
Widget createGauge(Widget statusBar, Widget statusLine)
{
    return XtVaCreateManagedWidget(
        "v_gauge", xmScaleWidgetClass, statusBar, XmNorientation, XmHORIZONTAL, XmNvalue, 0,
        XmNeditable, False, XmNtraversalOn, False, XmNslidingMode, XmTHERMOMETER, XmNsliderVisual,
        XmFOREGROUND_COLOR, XmNsliderMark, XmNONE, XmNleftAttachment, XmATTACH_WIDGET,
        XmNleftOffset, kGaugeMargin, XmNleftWidget, statusLine, XmNrightAttachment, XmATTACH_FORM,
        XmNrightOffset, kGaugeRightMargin, XmNtopAttachment, XmATTACH_FORM, XmNtopOffset,
        kGaugeMargin, XmNbottomAttachment, XmATTACH_FORM, XmNbottomOffset, kGaugeMargin, nullptr);
}

}  // namespace

Widget createShell(const settings::Geometry& geometry, bool isUsersPosition, Pixmap icon)
{
    Widget shell = XtVaAppCreateShell(
        appTitle(), kApplicationClass, applicationShellWidgetClass, session::display(), XmNtitle,
        appTitle(), XmNiconName, appTitle(), XmNiconPixmap, icon, XmNx, geometry.x, XmNy,
        geometry.y, XmNwidth, geometry.width, XmNheight, geometry.height, XmNminWidth,
        savedGeometry::kLeastWidth, XmNminHeight, savedGeometry::kLeastHeight, XmNbaseWidth, 0,
        XmNbaseHeight, 0, nullptr);
    if (shell) freeWithWidget(shell, icon);
    // The user left the frame there: the same as a position given by hand. Window managers may ignore
    // one that the program made up, and the corner of the screen above all.
    if (shell && isUsersPosition)
        reinterpret_cast<WMShellWidget>(shell)->wm.size_hints.flags |= USPosition;
    return shell;
}

Widget createMainWindow(Widget shell)
{
    return XtVaCreateWidget("v_mainwnd", xmMainWindowWidgetClass, shell, nullptr);
}

Widget createToolbar(Widget mainWindow)
{
    return XtVaCreateWidget("v_toolbar", xmFormWidgetClass, mainWindow, XmNheight, kToolbarHeight,
                            XmNresizePolicy, XmRESIZE_NONE, nullptr);
}

void createContents(Widgets& frame)
{
    frame.menuBar = createMenuBar(frame.mainWindow);
    frame.toolbar = createToolbar(frame.mainWindow);
    frame.scroller =
        XtVaCreateManagedWidget("v_scroll", xmScrolledWindowWidgetClass, frame.mainWindow,
                                XmNscrollingPolicy, XmAPPLICATION_DEFINED, nullptr);
    frame.text = createOutputText(frame.scroller);
    frame.statusBar =
        XtVaCreateManagedWidget("v_statusbar", xmFormWidgetClass, frame.mainWindow, nullptr);
    frame.statusLine = createStatusLine(frame.statusBar);
    frame.gauge = createGauge(frame.statusBar, frame.statusLine);
    XtVaSetValues(frame.mainWindow, XmNworkWindow, frame.scroller, XmNmessageWindow,
                  frame.statusBar, XmNinitialFocus, frame.text, nullptr);
}

}  // namespace kite::frame
