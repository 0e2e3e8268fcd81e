#include "toolkit/parked_copy.h"

#include <Xm/PrimitiveP.h>
#include <Xm/Text.h>

#include <new>
#include <utility>

#include "toolkit/text_copy.h"

namespace kite {

namespace {

struct {
    Widget text = nullptr;          // whose copy there is; null: there is none
    XmTextSource source = nullptr;  // what the text showed then
    XmTextPosition last = 0;        // its last position then
    TextCopy copy;
    LineStarts lines;  // of the copy
} parked;

// The field itself: XtSetValues makes a text paint all of itself anew, and a host reads line after line.
XtPointer& userData(Widget text)
{
    return reinterpret_cast<XmPrimitiveWidget>(text)->primitive.user_data;
}

void drop()
{
    parked.text = nullptr;
    parked.lines = LineStarts{};
    parked.copy = {};
}

bool isParkedIn(Widget text)
{
    return parked.text == text && userData(text) == parked.copy.bytes.get();
}

// A text may be given another source, which is no change of its value to the toolkit.
bool isCurrent(Widget text)
{
    return isParkedIn(text) && XmTextGetSource(text) == parked.source &&
           XmTextGetLastPosition(text) == parked.last;
}

void dropOf(Widget text, XtPointer, XtPointer)
{
    if (parked.text != text) return;
    if (isParkedIn(text)) userData(text) = nullptr;
    drop();
}

}  // namespace

void dropParkedCopyOnChange(Widget text)
{
    XtAddCallback(text, XmNvalueChangedCallback, dropOf, nullptr);
    XtAddCallback(text, XmNdestroyCallback, dropOf, nullptr);
}

const LineStarts* parkCopy(Widget text)
{
    if (isCurrent(text)) return &parked.lines;
    if (parked.text) dropOf(parked.text, nullptr, nullptr);
    TextCopy copy = copyOfText(text);
    if (!copy.bytes) return nullptr;
    try {
        parked.lines = LineStarts{copy.view()};
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
    parked.text = text;
    parked.source = XmTextGetSource(text);
    parked.last = XmTextGetLastPosition(text);
    parked.copy = std::move(copy);
    userData(text) = parked.copy.bytes.get();
    return &parked.lines;
}

}  // namespace kite
