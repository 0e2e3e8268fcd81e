#include "images/display_colours.h"

#include <algorithm>
#include <map>

#include "toolkit/display_closing.h"
#include "toolkit/never_destroyed.h"
#include "toolkit/x_error_trap.h"

namespace kite::images {

namespace {

// By screen, from its first colour until its display is closed. None: it has to be asked.
using Known = std::map<Screen*, std::optional<TrueColour>>;
Known& known = neverDestroyed<Known>();

void forget(Display* display)
{
    std::erase_if(known,
                  [=](const auto& entry) { return DisplayOfScreen(entry.first) == display; });
}

Screen* screenWithDefault(Display* display, Colormap colormap)
{
    for (int number = 0; number < ScreenCount(display); ++number) {
        Screen* const screen = ScreenOfDisplay(display, number);
        if (DefaultColormapOfScreen(screen) == colormap) return screen;
    }
    return nullptr;
}

std::optional<AllocatedColour> ask(Display* display, Colormap colormap, Rgb wanted)
{
    XColor colour{};
    colour.red = wide(wanted.red);
    colour.green = wide(wanted.green);
    colour.blue = wide(wanted.blue);
    if (!XAllocColor(display, colormap, &colour)) return std::nullopt;
    return AllocatedColour{static_cast<std::uint32_t>(colour.pixel), colour.red, colour.green,
                           colour.blue};
}

// Values that come out differently when a server rounds where others cut off.
constexpr Rgb kProbes[] = {{255, 128, 7}, {7, 255, 128}, {191, 12, 252}};

std::optional<TrueColour> learn(Screen* screen)
{
    const Visual* const visual = DefaultVisualOfScreen(screen);
    if (visual->c_class != TrueColor) return std::nullopt;
    const TrueColour computed{{visual->red_mask, visual->green_mask, visual->blue_mask,
                               visual->bits_per_rgb, DefaultDepthOfScreen(screen)}};
    for (const Rgb probe : kProbes)
        if (ask(DisplayOfScreen(screen), DefaultColormapOfScreen(screen), probe) !=
            computed.allocate(probe))
            return std::nullopt;
    return computed;
}

}  // namespace

const TrueColour* computedColours(Display* display, Colormap colormap)
{
    Screen* const screen = display ? screenWithDefault(display, colormap) : nullptr;
    if (!screen) return nullptr;
    auto entry = known.find(screen);
    if (entry == known.end()) {
        callBeforeClosing(display, forget);
        entry = known.emplace(screen, learn(screen)).first;
    }
    return entry->second ? &*entry->second : nullptr;
}

std::optional<AllocatedColour> allocateColour(Display* display, Colormap colormap, Rgb wanted)
{
    if (!display || colormap == 0) return std::nullopt;
    if (const TrueColour* const computed = computedColours(display, colormap))
        return computed->allocate(wanted);
    if (screenWithDefault(display, colormap)) return ask(display, colormap, wanted);
    const XErrorTrap trap{display};  // a host can name any number
    return ask(display, colormap, wanted);
}

}  // namespace kite::images
