// tree.cpp: an outline of items, which the user expands and collapses.

#include <Xm/Container.h>
#include <Xm/ScrolledW.h>
#include <kitegui.h>

#include "boxes/misuse.h"
#include "dialogs/building.h"
#include "dialogs/common_events.h"
#include "dialogs/control.h"
#include "dialogs/scrolled.h"
#include "dialogs/wheel.h"
#include "frame/dispatcher.h"
#include "frame/focus_leave.h"
#include "frame/frame_pictures.h"
#include "frame/hover.h"
#include "toolkit/layout.h"
#include "toolkit/outline.h"
#include "toolkit/resources.h"

namespace kite {

namespace {

constexpr ScrolledKind kScrolled{2, XmAUTOMATIC};

void report(Widget container, Tag tag, int isDouble)
{
    hover::cancel();
    Widget const item = outline::selectedItem(container);
    const int index = item ? outline::indexOf(item) : -1;
    focusLeave::deliver();
    raise(GUI_EVENT_SELECT, tag.id(), index, isDouble);
}

void selected(Widget container, XtPointer tag, XtPointer)
{
    report(container, Tag{tag}, 0);
}

void activated(Widget container, XtPointer tag, XtPointer)
{
    report(container, Tag{tag}, 1);
}

// The keyboard goes on behind the last item that is seen.
void uncover(Widget scrolled, XtPointer, XtPointer call)
{
    const auto& wanted = *static_cast<XmTraverseObscuredCallbackStruct*>(call);
    XmScrollVisible(scrolled, wanted.traversal_destination, 0, 0);
}

// The toolkit's containers keep the key that cancels a drag to themselves, where everywhere else it presses
// the cancel button of the dialog, and do not know the one that asks for help.
void completeKeys(Widget container)
{
    static const XtTranslations table =
        XtParseTranslationTable("<Key>osfCancel: ContainerCancel() ManagerParentCancel()\n"
                                "<Key>osfHelp: ManagerGadgetHelp()");
    XtOverrideTranslations(container, table);
}

// An empty tree would be drawn over the shadow around it: the toolkit lays out what has a size.
void shown(Widget scrolled, XtPointer, XEvent* event, Boolean*)
{
    if (event->type != MapNotify) return;
    layOutAgain(scrolled);
    XtRemoveEventHandler(scrolled, XtAllEvents, True, shown, nullptr);
}

void showPicture(Widget container, const char* state, const images::Picture& picture)
{
    if (picture) XtVaSetValues(container, const_cast<char*>(state), picture.pixmap, nullptr);
}

Widget createInner(Widget scrolled)
{
    Widget const container = XtVaCreateManagedWidget(
        "v_dlgtree", xmContainerWidgetClass, scrolled, XmNnavigationType, kTabStop, XmNlayoutType,
        XmOUTLINE, XmNselectionPolicy, XmBROWSE_SELECT, XmNautomaticSelection, XmNO_AUTO_SELECT,
        XmNfontList, building::font(), XmNshadowThickness, 0, XmNhighlightThickness, 0, XmNuserData,
        nullptr, nullptr);
    if (!container) return nullptr;
    // The marks say what a click on them does.
    const frame::TreeImages pictures = frame::treeImages(XtDisplay(scrolled));
    showPicture(container, XmNcollapsedStatePixmap, pictures.opened);
    showPicture(container, XmNexpandedStatePixmap, pictures.closed);
    return container;
}

}  // namespace

}  // namespace kite

using namespace kite;

int guiTree(int id, int row, int rows, int x, int width)
{
    if (!building::mayCreate("Tree", id, 1)) return GUI_FAILED;

    const Tag tag{id, ControlType::Tree};
    Widget const scrolled = createScrolled(kScrolled, tag, row, rows, x, width);
    if (!scrolled) return reportMisuse("Text: cannot create control %d", id);  // as texts say it
    Widget const container = createInner(scrolled);
    if (!container) {
        XtDestroyWidget(scrolled);
        return reportMisuse("Tree: cannot create control %d", id);
    }

    completeKeys(container);
    reportCommonEvents(container, tag);
    reportScrolling(scrolled, tag);
    scrollByWheel(scrolled);
    spreadBackground(scrolled);
    XtAddEventHandler(scrolled, StructureNotifyMask, False, shown, nullptr);
    if (auto* const around = resource<Widget>(scrolled, XmNclipWindow)) reportPointer(around, tag);
    XtAddCallback(scrolled, XmNtraverseObscuredCallback, uncover, nullptr);
    XtAddCallback(container, XmNselectionCallback, selected, tag.userData());
    XtAddCallback(container, XmNdefaultActionCallback, activated, tag.userData());
    return building::append(id, ControlType::Tree, scrolled);
}
