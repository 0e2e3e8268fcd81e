// list.cpp: a list of items, of which one or several are selected.

#include <Xm/List.h>
#include <Xm/ScrolledW.h>
#include <kitegui.h>

#include <algorithm>

#include "boxes/misuse.h"
#include "dialogs/building.h"
#include "dialogs/common_events.h"
#include "dialogs/control.h"
#include "dialogs/scrolled.h"
#include "frame/dispatcher.h"
#include "frame/focus_leave.h"
#include "frame/hover.h"
#include "toolkit/colours.h"
#include "toolkit/resources.h"

namespace kite {

namespace {

constexpr ScrolledKind kScrolled{2, XmAPPLICATION_DEFINED};

// What the host asks for, and what the toolkit calls it.
struct Mode {
    unsigned char policy;
    char* selected;  // the callbacks
};
const Mode kModes[] = {{XmBROWSE_SELECT, XmNbrowseSelectionCallback},
                       {XmEXTENDED_SELECT, XmNextendedSelectionCallback},
                       {XmMULTIPLE_SELECT, XmNmultipleSelectionCallback}};

const Mode& modeOf(int selectionMode)
{
    return kModes[std::clamp(selectionMode, 0, 2)];
}

// A click deselects the only item that is selected: only where several can be is none an answer.
void keepOneSelected(Widget list, int position)
{
    if (resource<unsigned char>(list, XmNselectionPolicy) == XmMULTIPLE_SELECT) return;
    if (resource<int>(list, XmNselectedItemCount) == 0) XmListSelectPos(list, position, False);
}

void report(Widget list, Tag tag, const XmListCallbackStruct& call, int isDouble)
{
    hover::cancel();
    keepOneSelected(list, call.item_position);
    focusLeave::deliver();
    raise(GUI_EVENT_SELECT, tag.id(), call.item_position - 1, isDouble);
}

void selected(Widget list, XtPointer tag, XtPointer call)
{
    report(list, Tag{tag}, *static_cast<XmListCallbackStruct*>(call), 0);
}

// A double click; Return selects nothing that was not selected before.
void activated(Widget list, XtPointer tag, XtPointer data)
{
    const auto& call = *static_cast<XmListCallbackStruct*>(data);
    if (call.event && call.event->type == ButtonRelease) {
        report(list, Tag{tag}, call, 1);
        return;
    }
    hover::cancel();
    keepOneSelected(list, call.item_position);
    focusLeave::deliver();
}

Widget createInner(Widget scrolled, const Mode& mode)
{
    return XtVaCreateManagedWidget(
        "v_dlglist", xmListWidgetClass, scrolled, XmNnavigationType, kTabStop, XmNshadowThickness,
        0, XmNhighlightThickness, 1, XmNlistSizePolicy, XmCONSTANT, XmNselectionPolicy, mode.policy,
        XmNfontList, building::font(), XmNforeground, blackPixel(scrolled), XmNbackground,
        whitePixel(scrolled), XmNuserData, nullptr, nullptr);
}

}  // namespace

}  // namespace kite

using namespace kite;

int guiList(int id, int row, int rows, int x, int width, int selectionMode)
{
    if (!building::mayCreate("List", id, 1)) return GUI_FAILED;

    const Tag tag{id, ControlType::List};
    const Mode& mode = modeOf(selectionMode);
    Widget const scrolled = createScrolled(kScrolled, tag, row, rows, x, width);
    if (!scrolled) return reportMisuse("List: cannot create control %d", id);
    Widget const list = createInner(scrolled, mode);
    if (!list) {
        XtDestroyWidget(scrolled);
        return reportMisuse("List: cannot create control %d", id);
    }

    reportCommonEvents(list, tag);
    reportScrolling(scrolled, tag);
    XtAddCallback(list, mode.selected, selected, tag.userData());
    XtAddCallback(list, XmNdefaultActionCallback, activated, tag.userData());
    return building::append(id, ControlType::List, scrolled);
}
