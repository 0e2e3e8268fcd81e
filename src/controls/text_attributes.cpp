// text_attributes.cpp: colours and fonts of controls.

#include <X11/IntrinsicP.h>
#include <Xm/ComboBox.h>
#include <Xm/Container.h>
#include <Xm/IconG.h>
#include <Xm/Xm.h>
#include <kitegui.h>

#include <optional>
#include <string>
#include <vector>

#include "controls/control_lookup.h"
#include "dialogs/building.h"
#include "dialogs/dialog_font.h"
#include "frame/settings.h"
#include "output/text_attribute.h"
#include "toolkit/argument_list.h"
#include "toolkit/children.h"
#include "toolkit/colours.h"
#include "toolkit/loaded_fonts.h"
#include "toolkit/rect.h"
#include "toolkit/resources.h"

namespace kite {

namespace {

using enum ControlType;
using Kind = TextAttribute::Kind;

// ---- parts ----------------------------------------------------------------------------------

constexpr TypeSet kWithField{Choice, Combo, Spin};
constexpr TypeSet kWithDropDown{Choice, Combo};

Widget fieldOf(const Control& control)
{
    return kWithField.has(control.type) ? resource<Widget>(control.widget, XmNtextField) : nullptr;
}

using Parts = std::vector<Widget>;

void addItems(Parts& parts, Widget tree)
{
    for (Widget const child : childrenOf(tree))
        if (XmIsIconGadget(child)) parts.push_back(child);
}

// Of a control whose text is shown by others: the toolkit does not hand down its colours.
Parts partsOf(const Control& control)
{
    Parts parts;
    if (Widget const field = fieldOf(control)) parts.push_back(field);
    if (kWithDropDown.has(control.type))
        if (auto* const list = resource<Widget>(control.widget, XmNlist)) parts.push_back(list);
    if (control.type == Tree) addItems(parts, control.widget);
    return parts;
}

// ---- colours --------------------------------------------------------------------------------

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
    if (Widget const bar = XtNameToWidget(progress, "Scrollbar"))
        paint(bar, XmNtroughColor, pixels);
}

void setColours(const Control& control, const TextAttribute& attribute)
{
    const Pixels pixels = pixelsFor(control, attribute);
    if (control.type == Progress) return paintProgress(control.widget, pixels);
    paint(control.widget, XmNforeground, pixels);
    for (Widget const part : partsOf(control)) paint(part, XmNforeground, pixels);
}

// ---- fonts ----------------------------------------------------------------------------------

std::string nameOfFont(const TextAttribute& attribute)
{
    switch (attribute.kind) {
    case Kind::FixedFont: return settings::outputFont();
    case Kind::VariableFont: return settings::statusLineFont();
    default: return attribute.fontName;
    }
}

// The toolkit does it for a distance that changes, not for an item.
void placeItems(Widget tree)
{
    const auto indentation = resource<Dimension>(tree, XmNoutlineIndentation);
    for (const int distance : {indentation + 1, +indentation})
        XtVaSetValues(tree, XmNoutlineIndentation, distance, nullptr);
}

// A drop-down control hands its font down.
void setFont(const Control& control, XmFontList font)
{
    XtVaSetValues(control.widget, XmNfontList, font, nullptr);
    if (kWithDropDown.has(control.type)) return;
    for (Widget const part : partsOf(control)) XtVaSetValues(part, XmNfontList, font, nullptr);
    if (control.type == Tree) placeItems(control.widget);
}

void setFont(const Control& control, const TextAttribute& attribute)
{
    if (attribute.kind == Kind::Nothing) return;
    Display* const display = XtDisplayOfObject(control.widget);
    if (XmFontList const font = loadedFont(display, nameOfFont(attribute))) setFont(control, font);
}

// ---- heights --------------------------------------------------------------------------------

// Controls of one line, which grow with their font.
struct Growth {
    ControlType type;
    int units;
    int pixels;  // besides
};

constexpr Growth kGrowths[] = {{Label, 8, 0},  {Edit, 12, 0},  {Button, 12, 0},
                               {Check, 10, 2}, {Radio, 10, 2}, {Spin, 12, 0}};

// Pixels to an eighth of a line, without a fraction; the dialog's own unit has one.
int unitOf(const Control& control)
{
    constexpr int kUnitsDown = 8;
    Widget const field = fieldOf(control);
    const auto font = resource<XmFontList>(field ? field : control.widget, XmNfontList);
    const auto measures = font ? measureFirstFont(font) : std::nullopt;
    return measures ? (measures->lineHeight - 1) / kUnitsDown : 0;
}

int heightFor(const Control& control, int height)
{
    for (const Growth& growth : kGrowths) {
        if (growth.type != control.type) continue;
        const int unit = unitOf(control);
        if (unit > building::units().vertical()) return growth.units * unit + growth.pixels;
    }
    return height;
}

// The place that a control has, whatever its toolkit widget makes of a font: some want to be as large as it.
// The dialog itself is not asked; it would refuse what stands out at its edge.
void setFontAndHeight(const Control& control, const TextAttribute& attribute)
{
    Widget const outer = control.outer;
    const auto width = resource<Dimension>(outer, XmNwidth);
    const auto height = resource<Dimension>(outer, XmNheight);
    Widget const field = control.type == Spin ? fieldOf(control) : nullptr;
    const auto room = field ? resource<Dimension>(field, XmNwidth) : Dimension{};
    setFont(control, attribute);
    if (field) XtVaSetValues(field, XmNwidth, room, nullptr);  // the arrows have the rest
    XtResizeWidget(outer, width, asDimension(heightFor(control, height)),
                   resource<Dimension>(outer, XmNborderWidth));
}

}  // namespace

}  // namespace kite

using namespace kite;

void guiSetTextAtt(int id, char flags, const char* attr)
{
    const Control control = findControl("SetText", id);
    if (!control) return;
    const TextAttribute attribute = parseTextAttribute(flags, attr);
    setColours(control, attribute);
    if (attribute.kind != Kind::Colours) setFontAndHeight(control, attribute);
}
