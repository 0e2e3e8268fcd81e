#include "dialogs/text_field.h"

#include <Xm/Xm.h>

#include "frame/focus_leave.h"
#include "frame/hover.h"
#include "toolkit/displayable_text.h"
#include "toolkit/insertion_cursor.h"
#include "toolkit/resources.h"

namespace kite {

namespace {

void left(Widget, XtPointer tag, XtPointer)
{
    hover::cancel();
    focusLeave::note(Tag{tag}.id(), focusLeave::Field::Composed);
}

}  // namespace

Widget fieldOf(Widget composed)
{
    return resource<Widget>(composed, XmNtextField);
}

void noteTyping(Widget field, Tag tag)
{
    XtVaSetValues(field, XmNmaxLength, kLongestEditableText, nullptr);
    showInsertionCursorWithFocus(field);
    XtAddCallback(field, XmNlosingFocusCallback, left, tag.userData());
}

}  // namespace kite
