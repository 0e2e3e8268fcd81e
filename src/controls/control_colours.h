// control_colours.h: the colours of controls.

#pragma once

#include "dialogs/control_lookup.h"
#include "output/text_attribute.h"

namespace kite {

// Those that the attribute names. Each call begins anew: other colours are those that the control was made with,
// black, and for what is typed or picked white behind it.
void setColours(const Control& control, const TextAttribute& attribute);

}  // namespace kite
