#include "refused_widgets.h"

#include <X11/Intrinsic.h>

#include <cstdarg>
#include <vector>

namespace {

std::string refusedName;  // none when empty

}  // namespace

kite::testing::RefusedWidgets::RefusedWidgets(const std::string& name)
{
    refusedName = name;
}

kite::testing::RefusedWidgets::~RefusedWidgets()
{
    refusedName.clear();
}

// The program's own comes before the toolkit's. Names and values only, as the library passes them.
extern "C" Widget XtVaCreateManagedWidget(const char* name, WidgetClass kind, Widget parent, ...)
{
    if (name && !refusedName.empty() && refusedName == name) return nullptr;
    std::vector<Arg> arguments;
    va_list list;
    va_start(list, parent);
    while (char* const resourceName = va_arg(list, char*)) {
        const XtArgVal value = va_arg(list, XtArgVal);
        arguments.push_back({resourceName, value});
    }
    va_end(list);
    return XtCreateManagedWidget(name, kind, parent, arguments.data(),
                                 static_cast<Cardinal>(arguments.size()));
}
