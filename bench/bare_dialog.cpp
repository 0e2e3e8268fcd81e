#include "bare_dialog.h"

#include <Xm/BulletinB.h>
#include <Xm/DialogS.h>
#include <Xm/Label.h>
#include <Xm/Protocols.h>
#include <Xm/PushB.h>
#include <Xm/Text.h>
#include <Xm/ToggleB.h>

#include <algorithm>

namespace bench {

namespace {

constexpr double kAcross = 2.15;  // pixels to a unit with the library's default font
constexpr double kDown = 2.25;
constexpr int kMargin = 7;

int across(int units)
{
    return static_cast<int>(units * kAcross);
}

int down(int units)
{
    return static_cast<int>(units * kDown);
}

void called(Widget, XtPointer, XtPointer) {}
void handled(Widget, XtPointer, XEvent*, Boolean*) {}

void listen(Widget control, Kind kind)
{
    XtAddEventHandler(control, EnterWindowMask | LeaveWindowMask, False, handled, nullptr);
    if (kind == Kind::Label) return;
    XtAddEventHandler(control, FocusChangeMask | KeyPressMask, False, handled, nullptr);
    XtAddCallback(control, XmNhelpCallback, called, nullptr);
}

Pixel black(Widget widget)
{
    return BlackPixelOfScreen(XtScreen(widget));
}

Pixel white(Widget widget)
{
    return WhitePixelOfScreen(XtScreen(widget));
}

}  // namespace

BareDialog::BareDialog(Widget parent, XmFontList font)
    : font_(font), shell_(XtVaCreatePopupShell("shell", xmDialogShellWidgetClass, parent, XmNtitle,
                                               "Dialog", XmNallowShellResize, False,
                                               XmNdeleteResponse, XmDO_NOTHING, nullptr)),
      board_(XtVaCreateWidget("board", xmBulletinBoardWidgetClass, shell_, XmNdialogStyle,
                              XmDIALOG_FULL_APPLICATION_MODAL, XmNautoUnmanage, False, XmNnoResize,
                              True, XmNresizePolicy, XmRESIZE_NONE, XmNmarginWidth, 0,
                              XmNmarginHeight, 0, XmNnavigationType, XmSTICKY_TAB_GROUP,
                              XmNlabelFontList, font, XmNbuttonFontList, font, XmNtextFontList,
                              font, nullptr))
{
    XmAddWMProtocolCallback(shell_, XInternAtom(XtDisplay(shell_), "WM_DELETE_WINDOW", False),
                            called, nullptr);
}

Widget BareDialog::createToggle(const Place& place, XmString label, int indicator)
{
    Widget const toggle = XtVaCreateManagedWidget(
        "toggle", xmToggleButtonWidgetClass, board_, XmNx, across(place.x + kMargin) - 1, XmNy,
        down(place.top + kMargin) - 1, XmNwidth, across(kControlWidth) + 2, XmNheight, down(10) + 2,
        XmNnavigationType, XmEXCLUSIVE_TAB_GROUP, XmNshadowThickness, 0, XmNhighlightThickness, 1,
        XmNborderWidth, 0, XmNrecomputeSize, False, XmNalignment, XmALIGNMENT_BEGINNING,
        XmNindicatorOn, True, XmNvisibleWhenOff, True, XmNindicatorType, indicator, XmNspacing, 3,
        XmNfontList, font_, XmNlabelString, label, nullptr);
    XtAddCallback(toggle, XmNvalueChangedCallback, called, nullptr);
    return toggle;
}

Widget BareDialog::create(const Place& place, XmString label)
{
    const int x = across(place.x + kMargin);
    const int y = down(place.top + kMargin);
    const int width = across(kControlWidth);
    Widget made = nullptr;
    switch (place.kind) {
    case Kind::Label:
        return XtVaCreateManagedWidget(
            "label", xmLabelWidgetClass, board_, XmNx, x, XmNy, y, XmNwidth, width, XmNheight,
            down(8), XmNborderWidth, 0, XmNshadowThickness, 0, XmNhighlightThickness, 0,
            XmNmarginWidth, 0, XmNmarginHeight, 0, XmNalignment, XmALIGNMENT_BEGINNING,
            XmNrecomputeSize, False, XmNfontList, font_, XmNlabelString, label, nullptr);
    case Kind::Edit:
        made = XtVaCreateManagedWidget(
            "edit", xmTextWidgetClass, board_, XmNx, x, XmNy, y, XmNwidth, width, XmNheight,
            down(12), XmNnavigationType, XmEXCLUSIVE_TAB_GROUP, XmNeditMode, XmSINGLE_LINE_EDIT,
            XmNeditable, True, XmNshadowThickness, 2, XmNhighlightThickness, 1, XmNmarginWidth, 3,
            XmNmarginHeight, 1, XmNbackground, white(board_), XmNforeground, black(board_),
            XmNfontList, font_, XmNcursorPositionVisible, False, nullptr);
        for (const char* const reason : {XmNfocusCallback, XmNlosingFocusCallback,
                                         XmNlosingFocusCallback, XmNvalueChangedCallback})
            XtAddCallback(made, reason, called, nullptr);
        return made;
    case Kind::Button:
        made = XtVaCreateManagedWidget(
            "button", xmPushButtonWidgetClass, board_, XmNx, x - 1, XmNy, y - 1, XmNwidth,
            width + 2, XmNheight, down(12) + 2, XmNnavigationType, XmEXCLUSIVE_TAB_GROUP,
            XmNshadowThickness, 2, XmNhighlightThickness, 1, XmNalignment, XmALIGNMENT_CENTER,
            XmNrecomputeSize, False, XmNfontList, font_, XmNlabelString, label, nullptr);
        XtAddCallback(made, XmNactivateCallback, called, nullptr);
        return made;
    case Kind::Check: return createToggle(place, label, XmN_OF_MANY);
    case Kind::Radio: return createToggle(place, label, XmONE_OF_MANY);
    }
    return made;
}

Widget BareDialog::add(const Place& place, const char* text)
{
    XmString const label = XmStringCreateLocalized(const_cast<char*>(text));
    Widget const control = create(place, label);
    XmStringFree(label);
    listen(control, place.kind);
    controls_.push_back(control);
    return control;
}

void BareDialog::show()
{
    Dimension right = 0;
    Dimension bottom = 0;
    for (Widget const control : controls_) {
        Position x = 0, y = 0;
        Dimension width = 0, height = 0;
        XtVaGetValues(control, XmNx, &x, XmNy, &y, XmNwidth, &width, XmNheight, &height, nullptr);
        right = std::max(right, static_cast<Dimension>(x + width));
        bottom = std::max(bottom, static_cast<Dimension>(y + height));
    }
    XtVaSetValues(board_, XmNwidth, right + across(kMargin), XmNheight, bottom + down(kMargin),
                  XmNinitialFocus, controls_.size() > 1 ? controls_[1] : nullptr, nullptr);
    XtManageChild(board_);
}

void BareDialog::destroy()
{
    XtUnmanageChild(board_);
    XtDestroyWidget(shell_);
    XSync(XtDisplay(XtParent(shell_)), False);
}

}  // namespace bench
