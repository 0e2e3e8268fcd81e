#include "toolkit/horizontal_scroll.h"

#include <Xm/TextOutP.h>
#include <Xm/TextP.h>

#include "toolkit/held_redisplay.h"

namespace kite {

void setHorizontalScrolling(Widget text, bool scrolls)
{
    OutputData const painter = reinterpret_cast<XmTextWidget>(text)->text.output->data;
    if ((painter->scrollhorizontal != False) == scrolls) return;
    paintHeldText();
    painter->scrollhorizontal = scrolls ? True : False;
    if (!painter->hbar) return;
    // The scrolled window lays the text out anew, and with it all of its lines.
    if (scrolls)
        XtManageChild(painter->hbar);
    else
        XtUnmanageChild(painter->hbar);
}

}  // namespace kite
