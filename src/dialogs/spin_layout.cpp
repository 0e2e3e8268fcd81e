#include "dialogs/spin_layout.h"

#include <X11/IntrinsicP.h>
#include <Xm/SpinBP.h>

#include <algorithm>

#include "dialogs/text_field.h"
#include "toolkit/layout.h"

namespace kite {

// Of a box that is lower than it would like to be the toolkit takes the width for the height, and puts the
// lower arrow far below.
void layOutSpin(Widget spin, Dimension fieldWidth)
{
    Widget const field = fieldOf(spin);
    XtResizeWidget(field, fieldWidth, spin->core.height, field->core.border_width);
    auto& layout = reinterpret_cast<XmSpinBoxWidget>(spin)->spinBox;
    layout.ideal_height = std::min(layout.ideal_height, spin->core.height);
    layOutAgain(spin);
}

}  // namespace kite
