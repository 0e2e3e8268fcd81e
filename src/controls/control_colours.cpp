#include "controls/control_colours.h"

#include <Xm/Xm.h>

#include <optional>

#include "controls/control_parts.h"
#include "dialogs/scale.h"
#include "dialogs/scrolled.h"
#include "toolkit/argument_list.h"
#include "toolkit/colours.h"

namespace kite {

namespace {

using enum ControlType;

constexpr TypeSet kBlack{Label, Button, Check, Radio, Edit,    Choice,
                         List,  Combo,  Tree,  Spin,  Progress};
constexpr TypeSet kOnWhite{Edit, Choice, List, Combo, Tree, Spin};

struct Pixels {
    std::optional<Pixel> foreground;
    std::optional<Pixel> background;
};

std::optional<Pixel> allocated(Widget widget, const std::optional<WideColour>& colour)
{
    if (!colour) return std::nullopt;
    return allocateColour(widget, {colour->red, colour->green, colour->blue});
}

// Each call begins anew: what it does not name becomes black again, and white behind it.
Pixels pixelsFor(const Control& control, const TextAttribute& attribute)
{
    Pixels pixels{allocated(control.widget, attribute.foreground),
                  allocated(control.widget, attribute.background)};
    if (!pixels.foreground && kBlack.has(control.type))
        pixels.foreground = blackPixel(control.widget);
    if (!pixels.background && kOnWhite.has(control.type))
        pixels.background = whitePixel(control.widget);
    return pixels;
}

void paint(Widget widget, const char* foregroundName, const Pixels& pixels)
{
    ArgumentList colours;
    if (pixels.foreground) colours.set(foregroundName, *pixels.foreground);
    if (pixels.background) colours.set(XmNbackground, *pixels.background);
    if (colours.size() > 0) XtSetValues(widget, colours.data(), colours.size());
}

// The part that fills is the trough of the bar in it.
void paintProgress(Widget progress, const Pixels& pixels)
{
    paint(progress, nullptr, {std::nullopt, pixels.background});
    if (Widget const bar = barOf(progress)) paint(bar, XmNtroughColor, pixels);
}

}  // namespace

void setColours(const Control& control, const TextAttribute& attribute)
{
    const Pixels pixels = pixelsFor(control, attribute);
    if (control.type == Progress) return paintProgress(control.widget, pixels);
    paint(control.widget, XmNforeground, pixels);
    for (Widget const part : partsOf(control)) paint(part, XmNforeground, pixels);
    if (control.type == Tree) spreadBackground(control.outer);
}

}  // namespace kite
