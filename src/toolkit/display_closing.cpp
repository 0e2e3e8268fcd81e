#include "toolkit/display_closing.h"

#include <algorithm>
#include <vector>

#include <X11/Xlibint.h>  // the last one: its macros are called min and max
#undef min
#undef max

namespace kite {

namespace {

struct Watch {
    Display* display;
    void (*action)(Display*);

    bool operator==(const Watch&) const = default;
};

std::vector<Watch>& watches()
{
    static auto& watches = *new std::vector<Watch>;  // a display may be closed after our own end
    return watches;
}

// Xlib tells its extensions, and this calls itself one.
int closing(Display* display, XExtCodes*)
{
    const std::vector<Watch> all = watches();
    std::erase_if(watches(), [=](const Watch& watch) { return watch.display == display; });
    for (const Watch& watch : all)
        if (watch.display == display) watch.action(display);
    return 0;
}

}  // namespace

void callBeforeClosing(Display* display, void (*action)(Display*))
{
    std::vector<Watch>& known = watches();
    const Watch wanted{display, action};
    if (std::find(known.begin(), known.end(), wanted) != known.end()) return;
    const bool isFirst = std::none_of(known.begin(), known.end(),
                                      [=](const Watch& watch) { return watch.display == display; });
    known.push_back(wanted);
    if (isFirst) XESetCloseDisplay(display, XAddExtension(display)->extension, closing);
}

}  // namespace kite
