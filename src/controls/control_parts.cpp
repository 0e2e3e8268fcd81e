#include "controls/control_parts.h"

#include <Xm/IconG.h>
#include <Xm/Xm.h>

#include <algorithm>
#include <iterator>

#include "dialogs/drop_down.h"
#include "dialogs/text_field.h"
#include "toolkit/children.h"

namespace kite {

namespace {

std::vector<Widget> itemsOf(Widget tree)
{
    const auto children = childrenOf(tree);
    std::vector<Widget> items;
    std::copy_if(children.begin(), children.end(), std::back_inserter(items),
                 [](Widget child) { return XmIsIconGadget(child); });
    return items;
}

}  // namespace

std::vector<Widget> partsOf(const Control& control)
{
    if (control.type == ControlType::Tree) return itemsOf(control.widget);
    if (control.type == ControlType::Spin) return {fieldOf(control.widget)};
    if (kDropDowns.has(control.type)) return {fieldOf(control.widget), listOf(control.widget)};
    return {};
}

Widget shownIn(const Control& control)
{
    return control.type == ControlType::Spin ? fieldOf(control.widget) : control.widget;
}

}  // namespace kite
