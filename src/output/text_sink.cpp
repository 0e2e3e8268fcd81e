#include "output/text_sink.h"

#include <Xm/Text.h>

#include <string>

#include "toolkit/held_redisplay.h"
#include "toolkit/horizontal_scroll.h"
#include "toolkit/resources.h"
#include "toolkit/text_positions.h"

namespace kite::output {

long TextSink::lastPosition()
{
    return XmTextGetLastPosition(text_);
}

long TextSink::insert(long position, std::string_view piece)
{
    XmTextInsert(text_, position, std::string{piece}.data());
    return positionsIn(piece);
}

void TextSink::setInsertionPoint(long position)
{
    XmTextSetInsertionPosition(text_, position);
}

// Unwrapped before it scrolls and wrapped after: a text that scrolls does not wrap.
void TextSink::applySettings()
{
    if (editable_) XmTextSetEditable(text_, *editable_ ? True : False);
    if (!XmIsText(text_)) return;  // a field has one line
    if (wraps_ == false) applyWordWrap(false);
    if (scrolls_) setHorizontalScrolling(text_, *scrolls_);
    if (wraps_ == true) applyWordWrap(true);
}

// A text that is set anew is cleared, and painted when the event loop comes to it: not for nothing, and
// not while its painting waits.
void TextSink::applyWordWrap(bool wraps)
{
    if ((resource<Boolean>(text_, XmNwordWrap) != False) == wraps) return;
    paintHeldText();
    XtVaSetValues(text_, XmNwordWrap, wraps ? True : False, nullptr);
}

}  // namespace kite::output
