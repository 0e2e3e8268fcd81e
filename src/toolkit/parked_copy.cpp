#include "toolkit/parked_copy.h"

#include <Xm/PrimitiveP.h>
#include <Xm/Text.h>

#include <new>
#include <unordered_map>
#include <utility>

#include "toolkit/never_destroyed.h"
#include "toolkit/text_copy.h"

namespace kite {

namespace {

struct Parked {
    XmTextSource source = nullptr;  // what the text showed when it was copied
    XmTextPosition last = 0;        // its last position then
    TextCopy copy;
    LineStarts lines;  // of the copy
};

// Of each text that has a copy. Put in by parkCopy, taken out by drop.
using Copies = std::unordered_map<Widget, Parked>;
Copies& copies = neverDestroyed<Copies>();

// The field itself: XtSetValues makes a text paint all of itself anew, and a host reads line after line.
XtPointer& userData(Widget text)
{
    return reinterpret_cast<XmPrimitiveWidget>(text)->primitive.user_data;
}

bool isIn(Widget text, const Parked& parked)
{
    return userData(text) == parked.copy.bytes.get();
}

// A text may be given another source, which is no change of its value to the toolkit.
bool isCurrent(Widget text, const Parked& parked)
{
    return isIn(text, parked) && XmTextGetSource(text) == parked.source &&
           XmTextGetLastPosition(text) == parked.last;
}

void drop(Widget text, XtPointer, XtPointer)
{
    const auto parked = copies.find(text);
    if (parked == copies.end()) return;
    if (isIn(text, parked->second)) userData(text) = nullptr;
    copies.erase(parked);
}

}  // namespace

void dropParkedCopyOnChange(Widget text)
{
    XtAddCallback(text, XmNvalueChangedCallback, drop, nullptr);
    XtAddCallback(text, XmNdestroyCallback, drop, nullptr);
}

const LineStarts* parkCopy(Widget text)
{
    const auto found = copies.find(text);
    if (found != copies.end() && isCurrent(text, found->second)) return &found->second.lines;
    drop(text, nullptr, nullptr);
    TextCopy copy = copyOfText(text);
    if (!copy.bytes) return nullptr;
    try {
        LineStarts lines{copy.view()};
        Parked& parked = copies[text];
        parked = {XmTextGetSource(text), XmTextGetLastPosition(text), std::move(copy),
                  std::move(lines)};
        userData(text) = parked.copy.bytes.get();
        return &parked.lines;
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

}  // namespace kite
