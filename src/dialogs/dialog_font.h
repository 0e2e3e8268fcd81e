// dialog_font.h: what dialog units are made of.

#pragma once

#include <Xm/Xm.h>

#include <optional>

#include "dialogs/dialog_units.h"

namespace kite {

// Measures the first font of the list; nothing when there is none.
std::optional<FontMeasures> measureFirstFont(XmFontList list);

}  // namespace kite
