#include "toolkit/new_display.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "toolkit/display_closing.h"

#include <X11/Xlibint.h>  // the last one: its macros are called min and max
#undef min
#undef max

namespace kite {

namespace {

std::vector<const void*>& notedAddresses()
{
    static std::vector<const void*> addresses;
    return addresses;
}

bool isNoted(const void* address)
{
    const std::vector<const void*>& noted = notedAddresses();
    return std::find(noted.begin(), noted.end(), address) != noted.end();
}

// The memory of the screens stays taken for good, about a hundred bytes: Xlib frees a copy.
void keepScreens(Display* display)
{
    static auto& kept = *new std::vector<Screen*>;
    const std::size_t size = sizeof(Screen) * static_cast<std::size_t>(display->nscreens);
    void* const copy = std::malloc(size);
    if (!copy) return;
    std::memcpy(copy, display->screens, size);
    kept.push_back(display->screens);
    display->screens = static_cast<Screen*>(copy);
}

// While it lives, the noted memory is taken, as far as a display could get it: to open and close a
// connection just for its address costs several round trips.
class Occupied {
public:
    Occupied()
    {
        void* block = std::malloc(sizeof(Display));
        while (block && isNoted(block)) {
            blocks_.push_back(block);
            block = std::malloc(sizeof(Display));
        }
        std::free(block);
    }
    ~Occupied()
    {
        for (void* const block : blocks_) std::free(block);
    }
    Occupied(const Occupied&) = delete;
    Occupied& operator=(const Occupied&) = delete;

private:
    std::vector<void*> blocks_;
};

}  // namespace

Display* openNewDisplay()
{
    const Occupied occupied;
    std::vector<Display*> old;
    Display* display = XOpenDisplay(nullptr);
    while (display && isNoted(display)) {
        old.push_back(display);
        display = XOpenDisplay(nullptr);
    }
    for (Display* const connection : old) XCloseDisplay(connection);
    if (display) noteDisplay(display);
    return display;
}

void noteDisplay(Display* display)
{
    callBeforeClosing(display, keepScreens);
    if (!isNoted(display)) notedAddresses().push_back(display);
}

}  // namespace kite
