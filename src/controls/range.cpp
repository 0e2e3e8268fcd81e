// range.cpp: the limits of a control's value, or of the length of its text.

#include <Xm/Text.h>
#include <kitegui.h>

#include "controls/control_lookup.h"
#include "controls/value_range.h"
#include "frame/dispatcher.h"

namespace kite {

namespace {

using enum ControlType;

constexpr TypeSet kWithRange{Edit, Text, Progress, Slider, Spin};

// One less, around the ends of the numbers as well. Hosts count the values of a scale from 1; guiSetPos
// and guiGetPos are made to fit.
int oneLess(int number)
{
    return static_cast<int>(static_cast<unsigned>(number) - 1U);
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
