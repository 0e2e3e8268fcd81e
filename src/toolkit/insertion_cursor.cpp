#include "toolkit/insertion_cursor.h"

#include <Xm/Text.h>

#include "toolkit/resources.h"

namespace kite {

namespace {

void gainedFocus(Widget text, XtPointer, XtPointer)
{
    showInsertionCursor(text);
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

// To set it again would paint all of the text.
void showInsertionCursor(Widget text)
{
    if (!resource<Boolean>(text, XmNcursorPositionVisible))
        XtVaSetValues(text, XmNcursorPositionVisible, True, nullptr);
}

void hideInsertionCursor(Widget text)
{
    XtVaSetValues(text, XmNcursorPositionVisible, False, nullptr);
}

}  // namespace kite
