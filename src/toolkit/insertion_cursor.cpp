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
    hideInsertionCursor(text);
}

}  // namespace

void showInsertionCursorWithFocus(Widget text)
{
    hideInsertionCursor(text);
    XtAddCallback(text, XmNfocusCallback, gainedFocus, nullptr);
    XtAddCallback(text, XmNlosingFocusCallback, lostFocus, nullptr);
}

void hideInsertionCursor(Widget text)
{
    XtVaSetValues(text, XmNcursorPositionVisible, False, nullptr);
}

}  // namespace kite
