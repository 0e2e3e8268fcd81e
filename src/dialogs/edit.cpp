// edit.cpp: one line of text to type in.

#include <Xm/Text.h>
#include <kitegui.h>

#include "boxes/misuse.h"
#include "dialogs/common_events.h"
#include "dialogs/control.h"
#include "dialogs/layout_metrics.h"
#include "dialogs/placement.h"
#include "frame/dispatcher.h"
#include "frame/focus_leave.h"
#include "frame/hover.h"
#include "toolkit/colours.h"
#include "toolkit/insertion_cursor.h"

namespace kite {

namespace {

void changed(Widget edit, XtPointer, XtPointer)
{
    hover::cancel();
    raise(GUI_EVENT_TEXT_CHANGED, Tag::of(edit).id(), XmTextGetLastPosition(edit) > 0 ? 1 : 0);
}

void left(Widget edit, XtPointer, XtPointer)
{
    hover::cancel();
    focusLeave::note(Tag::of(edit).id(), focusLeave::Field::Text);
}

}  // namespace

}  // namespace kite

using namespace kite;

int guiEdit(int id, int row, int x, int width, int hidden, int readOnly)
{
    if (!building::mayCreate("Edit", id, 1)) return GUI_FAILED;

    const Tag tag{id, ControlType::Edit};
    const Pixel background = whitePixel(building::board());
    Widget const widget = createControl(
        "v_dlgedit", xmTextWidgetClass, placed(x, topOf(row), width, layout::kEditHeight), tag,
        XmNnavigationType, kTabStop, XmNeditMode, XmSINGLE_LINE_EDIT, XmNeditable, readOnly == 0,
        XmNshadowThickness, 2, XmNhighlightThickness, 1, XmNmarginWidth, 3, XmNmarginHeight, 1,
        XmNbackground, background, XmNforeground,
        hidden ? background : blackPixel(building::board()), XmNfontList, building::font());
    if (!widget) return reportMisuse("Edit: cannot create control %d", id);

    showInsertionCursorWithFocus(widget);
    reportCommonEvents(widget, tag);
    XtAddCallback(widget, XmNlosingFocusCallback, left, nullptr);
    XtAddCallback(widget, XmNvalueChangedCallback, changed, nullptr);
    return building::append(id, ControlType::Edit, widget);
}
