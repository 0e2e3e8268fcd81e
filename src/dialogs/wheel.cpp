#include "dialogs/wheel.h"

#include <Xm/ScrollBar.h>
#include <Xm/ScrolledW.h>

#include <algorithm>

#include "toolkit/resources.h"

namespace kite {

namespace {

constexpr int kStepsOfWheel = 3;  // as in lists

void scrollBy(Widget bar, int steps)
{
    int value = 0;
    int shown = 0;
    int step = 0;
    int page = 0;
    XmScrollBarGetValues(bar, &value, &shown, &step, &page);
    const int least = resource<int>(bar, XmNminimum);
    const int most = std::max(least, resource<int>(bar, XmNmaximum) - shown);
    const int moved = std::clamp(value + steps * step, least, most);
    if (moved != value) XmScrollBarSetValues(bar, moved, shown, step, page, True);
}

void turned(Widget, XtPointer scrolled, XEvent* event, Boolean*)
{
    const unsigned button = event->xbutton.button;
    if (button != Button4 && button != Button5) return;
    auto* const bar = resource<Widget>(static_cast<Widget>(scrolled), XmNverticalScrollBar);
    if (bar && XtIsManaged(bar)) scrollBy(bar, button == Button4 ? -kStepsOfWheel : kStepsOfWheel);
}

}  // namespace

void scrollByWheel(Widget scrolled)
{
    auto* const inner = resource<Widget>(scrolled, XmNworkWindow);
    auto* const around = resource<Widget>(scrolled, XmNclipWindow);
    for (Widget const widget : {inner, around})
        if (widget) XtAddEventHandler(widget, ButtonPressMask, False, turned, scrolled);
}

}  // namespace kite
