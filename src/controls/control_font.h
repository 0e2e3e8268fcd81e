// control_font.h: the font of a control, and the height that it takes.

#pragma once

#include "dialogs/control_lookup.h"
#include "output/text_attribute.h"

namespace kite {

// When the attribute names a font that can be loaded. Controls of one line become as high as their font needs,
// when that is more than a row of the dialog.
void setFontAndHeight(const Control& control, const TextAttribute& attribute);

}  // namespace kite
