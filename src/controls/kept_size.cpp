#include "controls/kept_size.h"

#include <X11/IntrinsicP.h>

#include <list>

#include "toolkit/never_destroyed.h"
#include "toolkit/widget_ref.h"

namespace kite {

namespace {

struct Former {
    Former(Widget widget, Dimension itsWidth, Dimension itsHeight)
        : control(widget), width(itsWidth), height(itsHeight)
    {
    }

    WidgetRef control;
    Dimension width;
    Dimension height;
};

// Until the time-out has come. To restore it at once would make the window grow again with each further item.
std::list<Former>& grown = neverDestroyed<std::list<Former>>();

void restoreAll(XtPointer, XtIntervalId*)
{
    for (const Former& former : grown)
        if (Widget const control = former.control.get())
            XtResizeWidget(control, former.width, former.height, control->core.border_width);
    grown.clear();
}

}  // namespace

KeptSize::KeptSize(Widget control)
    : control_(control), width_(control->core.width), height_(control->core.height)
{
}

KeptSize::~KeptSize()
{
    if (control_->core.width == width_ && control_->core.height == height_) return;
    for (const Former& former : grown)
        if (former.control.get() == control_) return;
    if (grown.empty())
        XtAppAddTimeOut(XtWidgetToApplicationContext(control_), 0, restoreAll, nullptr);
    grown.emplace_back(control_, width_, height_);
}

}  // namespace kite
