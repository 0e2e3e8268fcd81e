#include "toolkit/scroll_bars.h"

#include <Xm/Xm.h>

#include <initializer_list>

#include "toolkit/resources.h"

namespace kite {

void adjustScrollBars(Widget scrolled, Widget board)
{
    for (const char* const which : {XmNhorizontalScrollBar, XmNverticalScrollBar})
        if (auto* const bar = resource<Widget>(scrolled, which))
            XtVaSetValues(bar, XmNshadowThickness, 2, XmNhighlightThickness, 0, XmNbackground,
                          resource<Pixel>(board, XmNbackground), XmNforeground,
                          resource<Pixel>(board, XmNforeground), XmNtraversalOn, False, nullptr);
}

}  // namespace kite
