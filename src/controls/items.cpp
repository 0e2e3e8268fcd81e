#include "controls/items.h"

#include <Xm/List.h>

#include <climits>
#include <cstring>

#include "dialogs/drop_down.h"
#include "toolkit/plain_text.h"
#include "toolkit/resources.h"

namespace kite {

namespace {

constexpr std::size_t kLongestItem = 1023;  // bytes

}  // namespace

Widget listOf(const Control& control)
{
    return control.type == ControlType::List ? control.widget : listOf(control.widget);
}

int itemCount(Widget list)
{
    return resource<int>(list, XmNitemCount);
}

XmString itemAt(Widget list, int index)
{
    if (index < 0 || index >= itemCount(list)) return nullptr;
    return resource<XmStringTable>(list, XmNitems)[index];
}

std::optional<std::string> itemText(Widget list, int index)
{
    XmString const item = itemAt(list, index);
    if (!item) return std::nullopt;
    return plainText(item);
}

std::string itemTextOf(const char* text)
{
    return text ? std::string{text, strnlen(text, kLongestItem)} : std::string{};
}

int positionOf(int index)
{
    return index < INT_MAX ? index + 1 : INT_MIN;
}

}  // namespace kite
