#include "dialogs/first_visible.h"

#include <X11/IntrinsicP.h>
#include <Xm/List.h>
#include <Xm/Text.h>

#include <algorithm>

#include "toolkit/outline.h"
#include "toolkit/resources.h"
#include "toolkit/text_copy.h"
#include "toolkit/text_positions.h"

namespace kite {

namespace {

std::optional<int> topLine(Widget text)
{
    const TextCopy copy = copyOfText(text);
    if (!copy.bytes) return std::nullopt;
    const auto above = copy.view().substr(0, byteAt(copy.view(), XmTextGetTopCharacter(text)));
    return static_cast<int>(std::count(above.begin(), above.end(), '\n'));
}

// The container moves in the scrolled window: what is above the window's top edge is hidden.
int topRow(Widget container)
{
    return outline::rowsAbove(container, -container->core.y);
}

}  // namespace

std::optional<int> firstVisible(Widget inner, ControlType type)
{
    switch (type) {
    case ControlType::List: return resource<int>(inner, XmNtopItemPosition) - 1;
    case ControlType::Text: return topLine(inner);
    default: return topRow(inner);
    }
}

}  // namespace kite
