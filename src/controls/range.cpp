// range.cpp: the limits of a control's value, or of the length of its text.

#include <Xm/Text.h>
#include <kitegui.h>

#include <climits>

#include "controls/value_range.h"
#include "dialogs/control_lookup.h"
#include "frame/dispatcher.h"

namespace kite {

namespace {

using enum ControlType;

constexpr TypeSet kWithRange{Edit, Text, Progress, Slider, Spin};

// Hosts count the values of a scale from 1; guiSetPos
// and guiGetPos are made to fit.
int oneLess(int number)
{
    return number > INT_MIN ? number - 1 : INT_MIN;
}

void setRange(const Control& control, int min, int max)
{
    const EventsSuppressed quiet;
    switch (control.type) {
    case Progress:
    case Slider: return setScaleRange(control.widget, oneLess(min), oneLess(max));
    case Spin: return setSpinRange(control.widget, min, max);
    default:
        if (max > 0) XmTextSetMaxLength(control.widget, max);
    }
}

}  // namespace

}  // namespace kite

using namespace kite;

void guiSetRange(int id, int min, int max)
{
    if (const Control control = findControl("SetRange", id, kWithRange))
        setRange(control, min, max);
}
