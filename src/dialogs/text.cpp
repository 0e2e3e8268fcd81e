// text.cpp: several lines of text to type in.

#include <Xm/ScrolledW.h>
#include <Xm/Text.h>
#include <kitegui.h>

#include "boxes/misuse.h"
#include "dialogs/building.h"
#include "dialogs/common_events.h"
#include "dialogs/control.h"
#include "dialogs/scrolled.h"
#include "frame/dispatcher.h"
#include "frame/focus_leave.h"
#include "frame/frame_fonts.h"
#include "frame/hover.h"
#include "toolkit/colours.h"
#include "toolkit/insertion_cursor.h"
#include "toolkit/parked_copy.h"
#include "toolkit/text_positions.h"
#include "toolkit/widget_ref.h"

namespace kite {

namespace {

constexpr ScrolledKind kScrolled{0, XmAPPLICATION_DEFINED};

// Counted from 0. An empty text has no line.
struct Place {
    int line = -1;
    int column = 0;
};

Place placeOf(const LineStarts& lines, XmTextPosition position)
{
    const std::size_t bytes = byteAt(lines.text(), position);
    const auto column = static_cast<std::size_t>(lines.columnAt(bytes));
    return {lines.lineAt(bytes) - 1,
            static_cast<int>(positionsIn(lines.text().substr(bytes - column, column)))};
}

void reportPlace(Tag tag, const Place& place)
{
    raise(GUI_EVENT_CURSOR, tag.id(), place.line, place.column);
}

// The library's own changes are told to nobody, so nothing is counted for them: hosts fill a text line
// by line.
void changed(Widget text, XtPointer data, XtPointer)
{
    hover::cancel();
    if (dispatcher::areEventsSuppressed()) return;
    const WidgetRef alive{text};
    if (XmTextGetLastPosition(text) == 0)
        reportPlace(Tag{data}, {});
    else if (const LineStarts* const lines = parkCopy(text))
        reportPlace(Tag{data}, placeOf(*lines, XmTextGetInsertionPosition(text)));
    else
        reportMisuse("GetLineCount: out of memory");
    if (alive && !dispatcher::areEventsSuppressed()) showInsertionCursor(text);
}

void left(Widget, XtPointer tag, XtPointer)
{
    hover::cancel();
    focusLeave::note(Tag{tag}.id(), focusLeave::Field::Text);
}

XmFontList fixedPitchFont(Widget widget)
{
    XmFontList const font = frameFonts::of(widget, frameFonts::Use::Output);
    return font ? font : building::font();
}

Widget createInner(Widget scrolled, bool readOnly)
{
    return XtVaCreateManagedWidget(
        "v_dlgtext", xmTextWidgetClass, scrolled, XmNnavigationType, kTabStop, XmNeditMode,
        XmMULTI_LINE_EDIT, XmNeditable, !readOnly, XmNshadowThickness, 2, XmNhighlightThickness, 0,
        XmNmarginWidth, 3, XmNmarginHeight, 1, XmNfontList, fixedPitchFont(scrolled), XmNforeground,
        blackPixel(scrolled), XmNbackground, whitePixel(scrolled), XmNuserData, nullptr, nullptr);
}

}  // namespace

}  // namespace kite

using namespace kite;

int guiText(int id, int row, int rows, int x, int width, int readOnly)
{
    if (!building::mayCreate("Text", id, 1)) return GUI_FAILED;

    const Tag tag{id, ControlType::Text};
    Widget const scrolled = createScrolled(kScrolled, tag, row, rows, x, width);
    if (!scrolled) return reportMisuse("Text: cannot create control %d", id);
    Widget const text = createInner(scrolled, readOnly != 0);
    if (!text) {
        XtDestroyWidget(scrolled);
        return reportMisuse("Text: cannot create control %d", id);
    }

    dropParkedCopyOnChange(text);
    showInsertionCursorWithFocus(text);
    reportCommonEvents(text, tag);
    reportScrolling(scrolled, tag);
    XtAddCallback(text, XmNlosingFocusCallback, left, tag.userData());
    XtAddCallback(text, XmNvalueChangedCallback, changed, tag.userData());
    return building::append(id, ControlType::Text, scrolled);
}
