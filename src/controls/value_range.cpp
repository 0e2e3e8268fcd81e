#include "controls/value_range.h"

#include <Xm/SSpinB.h>
#include <Xm/Scale.h>
#include <Xm/TextF.h>

#include <algorithm>
#include <climits>
#include <string>

#include "dialogs/text_field.h"
#include "toolkit/resources.h"
#include "toolkit/xt_string.h"

namespace kite {

namespace {

// How the toolkit names the value of a control and its limits.
struct Names {
    char* value;
    char* least;
    char* most;
};

const Names kScale{XmNvalue, XmNminimum, XmNmaximum};
const Names kSpin{XmNposition, XmNminimumValue, XmNmaximumValue};

constexpr long kWidestScale = INT_MAX / 2;

int clamped(long value, int least, int most)
{
    return static_cast<int>(std::clamp(value, long{least}, long{std::max(least, most)}));
}

void setValue(Widget control, const Names& names, long value)
{
    const int least = resource<int>(control, names.least);
    const int most = resource<int>(control, names.most);
    XtVaSetValues(control, names.value, clamped(value, least, most), nullptr);
}

void setRange(Widget control, const Names& names, int least, int most)
{
    if (least >= most) return;
    const int value = resource<int>(control, names.value);
    XtVaSetValues(control, names.least, least, names.most, most, names.value,
                  clamped(value, least, most), nullptr);
}

// The toolkit writes the position into the field only when it is another one than before; something else may
// have been typed.
void showPosition(Widget spin)
{
    Widget const field = fieldOf(spin);
    const std::string position = std::to_string(resource<int>(spin, XmNposition));
    const XtString shown{XmTextFieldGetString(field)};
    if (!shown || position != shown.get())
        XmTextFieldSetString(field, const_cast<char*>(position.c_str()));
}

}  // namespace

void setScaleValue(Widget scale, long value)
{
    setValue(scale, kScale, value);
}

void setSpinPosition(Widget spin, long position)
{
    setValue(spin, kSpin, position);
    showPosition(spin);
}

void setScaleRange(Widget scale, int least, int most)
{
    if (long{most} - least <= kWidestScale) setRange(scale, kScale, least, most);
}

void setSpinRange(Widget spin, int least, int most)
{
    setRange(spin, kSpin, least, most);
    showPosition(spin);
}

}  // namespace kite
