#include "output/output_text.h"

#include <X11/IntrinsicP.h>
#include <Xm/Text.h>

#include "frame/main_frame.h"
#include "toolkit/held_redisplay.h"

namespace kite::output {

Widget text()
{
    Widget const text = frame::widgets().text;
    return text && !text->core.being_destroyed ? text : nullptr;
}

Widget textToRead()
{
    paintOverdueText();
    return text();
}

Range selection(Widget text)
{
    Range range;
    if (!XmTextGetSelectionPosition(text, &range.left, &range.right)) return {};
    return range;
}

bool isUsable(const Range& range, XmTextPosition textLength)
{
    return range.left >= 0 && range.right > range.left && range.right <= textLength;
}

}  // namespace kite::output
