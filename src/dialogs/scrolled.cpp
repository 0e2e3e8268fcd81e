#include "dialogs/scrolled.h"

#include <Xm/ScrollBar.h>
#include <Xm/ScrolledW.h>
#include <kitegui.h>

#include "dialogs/control.h"
#include "dialogs/first_visible.h"
#include "dialogs/lost_release.h"
#include "dialogs/placement.h"
#include "frame/dispatcher.h"
#include "frame/hover.h"
#include "toolkit/resources.h"
#include "toolkit/scroll_bars.h"

namespace kite {

namespace {

// A scroll bar tells of a movement in the callbacks of one of these, and the others stay silent.
const char* const kMovements[] = {
    XmNvalueChangedCallback,  XmNdragCallback,          XmNincrementCallback, XmNdecrementCallback,
    XmNpageIncrementCallback, XmNpageDecrementCallback, XmNtoTopCallback,     XmNtoBottomCallback};

void moved(Widget bar, XtPointer data, XtPointer)
{
    const Tag tag{data};
    hover::cancel();
    auto* const inner = resource<Widget>(XtParent(bar), XmNworkWindow);
    if (const auto top = inner ? firstVisible(inner, tag.type()) : std::nullopt)
        raise(GUI_EVENT_SCROLLED, tag.id(), *top);
}

}  // namespace

Widget createScrolled(const ScrolledKind& kind, Tag tag, int row, int rows, int x, int width)
{
    const double height = building::usesAbsolutePositions() ? rows : heightOfRows(rows);
    return createControl("v_dlgscroll", xmScrolledWindowWidgetClass,
                         placed(x, topOf(row), width, height), tag, XmNshadowThickness, kind.shadow,
                         XmNhighlightThickness, 1, XmNspacing, 0, XmNscrollingPolicy, kind.policy);
}

void reportScrolling(Widget scrolled, Tag tag)
{
    adjustScrollBars(scrolled, building::board());
    for (const char* const which : {XmNhorizontalScrollBar, XmNverticalScrollBar})
        if (auto* const bar = resource<Widget>(scrolled, which)) letGoOfWhatIsHeld(bar);
    auto* const down = resource<Widget>(scrolled, XmNverticalScrollBar);
    if (!down) return;
    for (const char* const movement : kMovements)
        XtAddCallback(down, const_cast<char*>(movement), moved, tag.userData());
}

void spreadBackground(Widget scrolled)
{
    auto* const inner = resource<Widget>(scrolled, XmNworkWindow);
    if (auto* const around = resource<Widget>(scrolled, XmNclipWindow))
        XtVaSetValues(around, XmNbackground, resource<Pixel>(inner, XmNbackground), nullptr);
}

}  // namespace kite
