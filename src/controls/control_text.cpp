#include "controls/control_text.h"

#include <Xm/ComboBox.h>
#include <Xm/Container.h>
#include <Xm/IconG.h>
#include <Xm/List.h>
#include <Xm/SSpinB.h>
#include <Xm/Text.h>
#include <Xm/TextF.h>

#include "dialogs/text_field.h"
#include "toolkit/outline.h"
#include "toolkit/plain_text.h"
#include "toolkit/resources.h"
#include "toolkit/xt_string.h"

namespace kite {

namespace {

std::string owned(char* text)
{
    const XtString copy{text};
    return copy ? copy.get() : "";
}

std::optional<std::string> itemAtCursor(Widget list)
{
    const int position = XmListGetKbdItemPos(list);
    if (position < 1 || position > resource<int>(list, XmNitemCount)) return std::nullopt;
    return plainText(resource<XmStringTable>(list, XmNitems)[position - 1]);
}

std::string selectedTreeLabel(Widget container)
{
    Widget const item = outline::selectedItem(container);
    return item ? plainTextOf(item, XmNlabelString) : std::string{};
}

}  // namespace

std::optional<std::string> textOf(const Control& control)
{
    Widget const widget = control.widget;
    switch (control.type) {
    case ControlType::Edit: return owned(XmTextGetString(widget));
    case ControlType::Choice:
    case ControlType::Combo: return plainTextOf(widget, XmNselectedItem);
    case ControlType::List: return itemAtCursor(widget);
    case ControlType::Text: return owned(XmTextGetSelection(widget));
    case ControlType::Tree: return selectedTreeLabel(widget);
    case ControlType::Spin: return owned(XmTextFieldGetString(fieldOf(widget)));
    default: return plainTextOf(widget, XmNlabelString);
    }
}

}  // namespace kite
