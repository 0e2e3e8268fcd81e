#include "controls/kept_size.h"

#include <X11/IntrinsicP.h>

namespace kite {

KeptSize::KeptSize(Widget control)
    : control_(control), width_(control->core.width), height_(control->core.height)
{
}

KeptSize::~KeptSize()
{
    const CorePart& core = control_->core;
    if (core.width != width_ || core.height != height_)
        XtResizeWidget(control_, width_, height_, core.border_width);
}

}  // namespace kite
