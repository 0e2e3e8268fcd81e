// insert_text.cpp: puts a text in the place of the selected one, or where the insertion point stands.

#include <Xm/Text.h>
#include <kitegui.h>

#include "dialogs/control_lookup.h"
#include "frame/dispatcher.h"
#include "toolkit/host_buffer.h"
#include "toolkit/text_positions.h"

namespace kite {

namespace {

void insert(Widget text, const char* inserted)
{
    const EventsSuppressed quiet;
    XmTextPosition left = 0;
    XmTextPosition right = 0;
    if (!XmTextGetSelectionPosition(text, &left, &right))
        left = right = XmTextGetInsertionPosition(text);
    XmTextReplace(text, left, right, const_cast<char*>(inserted));
    const XmTextPosition end = left + positionsIn(inserted);
    XmTextSetInsertionPosition(text, end);
    if (left != right)
        XmTextSetSelection(text, left, end, XtLastTimestampProcessed(XtDisplay(text)));
}

}  // namespace

}  // namespace kite

using namespace kite;

void guiInsertText(int id, const char* text)
{
    if (const Control control = findControl("InsertText", id, {ControlType::Text}))
        insert(control.widget, orEmpty(text));
}
