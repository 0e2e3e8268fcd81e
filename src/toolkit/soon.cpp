#include "toolkit/soon.h"

#include <memory>

#include "toolkit/widget_ref.h"

namespace kite {

namespace {

struct Planned {
    Planned(Widget concerned, void (*what)(Widget)) : widget(concerned), action(what) {}

    WidgetRef widget;
    void (*action)(Widget);
};

void isTime(XtPointer data, XtIntervalId*)
{
    const std::unique_ptr<Planned> planned{static_cast<Planned*>(data)};
    if (Widget const widget = planned->widget.get()) planned->action(widget);
}

}  // namespace

void soon(Widget widget, void (*action)(Widget))
{
    auto planned = std::make_unique<Planned>(widget, action);
    XtAppAddTimeOut(XtWidgetToApplicationContext(widget), 0, isTime, planned.release());
}

}  // namespace kite
