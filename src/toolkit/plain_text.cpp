#include "toolkit/plain_text.h"

#include <memory>
#include <type_traits>

#include "toolkit/resources.h"
#include "toolkit/xt_string.h"

namespace kite {

std::string plainText(XmString string)
{
    std::string text;
    XmStringContext context = nullptr;
    if (!string || !XmStringInitContext(&context, string)) return text;
    const std::unique_ptr<std::remove_pointer_t<XmStringContext>, decltype(&XmStringFreeContext)>
        owner{context, XmStringFreeContext};  // there may be no memory for the text
    unsigned int length = 0;
    XtPointer value = nullptr;
    XmStringComponentType type = XmSTRING_COMPONENT_END;
    while ((type = XmStringGetNextTriple(context, &length, &value)) != XmSTRING_COMPONENT_END) {
        const XtString owned{static_cast<char*>(value)};
        if (type == XmSTRING_COMPONENT_TEXT || type == XmSTRING_COMPONENT_LOCALE_TEXT)
            text.append(owned.get(), length);
        else if (type == XmSTRING_COMPONENT_SEPARATOR)
            text += '\n';
        else if (type == XmSTRING_COMPONENT_TAB)
            text += '\t';
    }
    return text;
}

std::string plainTextOf(Widget widget, const char* resourceName)
{
    auto* const string = resource<XmString>(widget, resourceName);
    std::string text = plainText(string);
    XmStringFree(string);
    return text;
}

}  // namespace kite
