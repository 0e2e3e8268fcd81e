#include "toolkit/insertion_cursor.h"

#include <Xm/Text.h>

namespace kite {

namespace {

void gainedFocus(Widget text, XtPointer, XtPointer)
{
    XtVaSetValues(text, XmNcursorPositionVisible, True, nullptr);
}

void lostFocus(Widget text, XtPointer, XtPointer)
{
    XtVaSetValues(text, XmNcursorPositionVisible, False, nullptr);
}

}  // namespace

void showInsertionCursorWithFocus(Widget text)
{
    XtVaSetValues(text, XmNcursorPositionVisible, False, nullptr);
    XtAddCallback(text, XmNfocusCallback, gainedFocus, nullptr);
    XtAddCallback(text, XmNlosingFocusCallback, lostFocus, nullptr);
}

}  // namespace kite
