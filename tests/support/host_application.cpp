#include "host_application.h"

#include <X11/Shell.h>

namespace kite::testing {

HostApplication openHostApplication()
{
    char program[] = "own";
    char* arguments[] = {program, nullptr};
    int count = 1;
    HostApplication opened;
    opened.shell = XtVaOpenApplication(&opened.context, "Own", nullptr, 0, &count, arguments,
                                       nullptr, applicationShellWidgetClass, nullptr);
    return opened;
}

}  // namespace kite::testing
