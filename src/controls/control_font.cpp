#include "controls/control_font.h"

#include <X11/IntrinsicP.h>
#include <Xm/Container.h>
#include <Xm/Xm.h>

#include <string>

#include "controls/control_parts.h"
#include "dialogs/building.h"
#include "dialogs/dialog_font.h"
#include "dialogs/spin_layout.h"
#include "frame/settings.h"
#include "toolkit/layout.h"
#include "toolkit/loaded_fonts.h"
#include "toolkit/rect.h"
#include "toolkit/resources.h"

namespace kite {

namespace {

using enum ControlType;
using Kind = TextAttribute::Kind;

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
    if (kDropDowns.has(control.type)) return;
    for (Widget const part : partsOf(control)) XtVaSetValues(part, XmNfontList, font, nullptr);
    if (control.type == Tree) placeItems(control.widget);
}

void setFont(const Control& control, const TextAttribute& attribute)
{
    if (attribute.kind == Kind::Nothing) return;
    Display* const display = XtDisplayOfObject(control.widget);
    if (XmFontList const font = loadedFont(display, nameOfFont(attribute))) setFont(control, font);
}

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
    const auto font = resource<XmFontList>(shownIn(control), XmNfontList);
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

}  // namespace

// The place that a control has, whatever its toolkit widget makes of a font: some want to be as large as it.
// The dialog itself is not asked; it would refuse what stands out at its edge.
void setFontAndHeight(const Control& control, const TextAttribute& attribute)
{
    Widget const outer = control.outer;
    const auto width = resource<Dimension>(outer, XmNwidth);
    const auto height = resource<Dimension>(outer, XmNheight);
    const auto widthShown = resource<Dimension>(shownIn(control), XmNwidth);
    setFont(control, attribute);
    XtResizeWidget(outer, width, asDimension(heightFor(control, height)),
                   resource<Dimension>(outer, XmNborderWidth));
    if (control.type == Spin) layOutSpin(outer, widthShown);
    if (kDropDowns.has(control.type)) layOutAgain(outer);
}

}  // namespace kite
